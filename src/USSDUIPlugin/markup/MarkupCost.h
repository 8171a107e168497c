#ifndef MARKUPCOST_H
#define MARKUPCOST_H

#include <QString>

/**
 * Estimates how long a rich-text document would take to lay out the markup in a reply, so that
 * TranscriptView can show the reply as plain letters if its markup is too expensive. The layout
 * time doubles with each nested table, a table cell may span four hundred million others, and each
 * rule of a style sheet is tried on each tag: a reply of 182 characters can block a window for
 * hours.
 *
 * The figures are counted in the text, not in the parsed document, and never underestimate the
 * cost. MarkupTag decides what is a tag at all; HeavyText deals with text that is slow without any
 * markup.
 */
struct MarkupCost {
    int tags = 0;
    int tables = 0;
    int rules = 0;     // rules of style sheets
    bool wide = false; // true if a cell may span very many others

    /// Returns true if this markup may be added to a transcript whose markup costs `before`.
    bool isBearable(const MarkupCost &before) const;
    void add(const MarkupCost &other);
};

/// Returns the cost of the markup in `text`.
MarkupCost markupCost(const QString &text);

#endif

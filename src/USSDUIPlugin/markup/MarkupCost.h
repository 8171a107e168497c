#ifndef MARKUPCOST_H
#define MARKUPCOST_H

#include <QString>

/**
 * Estimates how long a rich-text document would take to lay out the markup in a reply.
 * TranscriptView shows the markup as plain text if it is too expensive. The layout time doubles
 * with each nested table, a table cell may span four hundred million other cells, and each rule of
 * a style sheet is matched against each tag. A reply of 182 characters can therefore block a window
 * for hours.
 *
 * The figures are counted in the text, not in the parsed document, and are never too low.
 * HarmlessMarkup decides what is treated as a tag; SlowText handles text that is slow even without
 * markup.
 */
struct MarkupCost {
    int tags = 0;
    int tables = 0;
    int rules = 0;     // rules of style sheets
    bool wide = false; // true if a cell may span a very large number of other cells

    /// Returns true if this markup may be added to a transcript whose existing markup has the cost
    /// `before`.
    bool isBearable(const MarkupCost &before) const;
    void add(const MarkupCost &other);
};

/// Returns the cost of the markup in `text`.
MarkupCost markupCost(const QString &text);

#endif

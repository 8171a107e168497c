#ifndef MARKUPCOST_H
#define MARKUPCOST_H

#include <QString>

/**
 * Estimates how long a rich-text document would take to lay out the markup in a reply. If the
 * markup is too expensive, TranscriptView shows it as plain text. The layout time doubles with each
 * nested table, a table cell may span four hundred million other cells, and each rule of a style
 * sheet is matched against each tag. Therefore, a reply of 182 characters can block a window for
 * hours.
 *
 * The numbers are counted in the text, not in the parsed document, and are never too low.
 * HarmlessMarkup determines what is treated as a tag. SlowText handles text that is slow even
 * without markup.
 */
struct MarkupCost {
    int tags = 0;
    int tables = 0;
    int rules = 0;     // style sheet rules
    bool wide = false; // true if a cell may span a very large number of other cells

    /// Returns true if this markup may be added to a transcript whose existing markup has the cost
    /// `before`.
    bool isBearable(const MarkupCost &before) const;
    void add(const MarkupCost &other);
};

/// Returns the cost of the markup in `text`.
MarkupCost markupCost(const QString &text);

#endif

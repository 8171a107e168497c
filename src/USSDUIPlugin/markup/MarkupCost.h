#ifndef MARKUPCOST_H
#define MARKUPCOST_H

#include <QString>

/**
 * Estimates how long QTextDocument would take to lay out the markup in a reply. Without this check,
 * a reply of 182 characters could block a window for hours: the layout time doubles with each
 * nested table, a table cell can span four hundred million cells, and every rule of a style sheet
 * is matched against every tag. TranscriptView shows markup that is too expensive as plain text.
 *
 * The counts are based on the text, not on the parsed document, and are upper bounds.
 * HarmlessMarkup decides which parts of the text are tags. SlowText detects text that is slow even
 * without markup.
 */
struct MarkupCost {
    int tags = 0;
    int tables = 0;
    int rules = 0;     // style sheet rules
    bool wide = false; // true if a cell may span a very large number of cells

    /// Returns true if this markup can be added to a transcript whose markup already has the cost
    /// `before`.
    bool isBearable(const MarkupCost &before) const;
    void add(const MarkupCost &other);
};

/// Returns the cost of the markup in `text`.
MarkupCost markupCost(const QString &text);

#endif

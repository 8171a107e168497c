#ifndef MARKUPCOST_H
#define MARKUPCOST_H

#include <QString>

/**
 * What a text would cost if a rich-text document read it as markup. The time to lay out tables
 * inside each other doubles with each of them, a cell may span four hundred million others, and
 * each rule of a style sheet is tried on each tag: a reply of 182 characters can keep a window busy
 * for hours.
 *
 * It counts what stands in the text, not what the document makes of it: never too little.
 */
struct MarkupCost {
    int tags = 0;
    int tables = 0;
    int rules = 0;     // of style sheets
    bool wide = false; // a cell may span very many others

    /// Whether a transcript that holds markup of the cost `before` bears this one as well.
    bool isBearable(const MarkupCost &before) const;
    void add(const MarkupCost &other);
};

MarkupCost markupCost(const QString &text);

#endif

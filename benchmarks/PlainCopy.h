#ifndef PLAINCOPY_H
#define PLAINCOPY_H

class QWidget;

/// Returns a dialog that looks like `original` but consists only of Qt widgets. The widgets have
/// the same types, texts, sizes, states and layouts, but no connections, files or object names. The
/// caller owns the dialog.
QWidget *plainCopy(const QWidget &original, QWidget *parent);

#endif

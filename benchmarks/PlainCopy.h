#ifndef PLAINCOPY_H
#define PLAINCOPY_H

class QWidget;

/// A dialog that looks like this one, made of Qt's own widgets with nothing behind them: the same
/// kinds, texts, sizes, states and layouts, no connections, files or names. The caller owns it.
QWidget *plainCopy(const QWidget &original, QWidget *parent);

#endif

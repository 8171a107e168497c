#ifndef PROFILELINEEDIT_H
#define PROFILELINEEDIT_H

#include "ExtendLineEdit.h"

/**
 * An editor that keeps Up and Down inside its cell: they move the cursor left and right. The
 * table's delegate does not use it today.
 */
class ProfileLineEdit : public ExtendLineEdit
{
    Q_OBJECT
public:
    explicit ProfileLineEdit(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

#endif

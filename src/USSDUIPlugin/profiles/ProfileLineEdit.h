#ifndef PROFILELINEEDIT_H
#define PROFILELINEEDIT_H

#include "ExtendLineEdit.h"

/**
 * A line edit that keeps Up and Down inside its cell: they move the cursor left and right. The
 * delegate of the table does not use it at present.
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

#ifndef PROFILELINEEDIT_H
#define PROFILELINEEDIT_H

#include "ExtendLineEdit.h"

/**
 * A line edit in which the Up and Down keys move the cursor left and right, so that they do not
 * leave the cell. The delegate of the table does not currently use this class.
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

#ifndef PROFILELINEEDIT_H
#define PROFILELINEEDIT_H

#include "ExtendLineEdit.h"

/**
 * A line edit in which the Up and Down keys move the cursor to the left and right, so that these
 * keys do not leave the cell. Currently, the delegate of the table does not use this class.
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

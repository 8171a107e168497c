#ifndef EXTENDLINEEDIT_H
#define EXTENDLINEEDIT_H

#include <QLineEdit>

/**
 * The host's line edit, which behaves like QLineEdit. Plug-ins use it for their input fields, so
 * that a style sheet of the host can select these fields by the class name.
 */
class Q_DECL_EXPORT ExtendLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    /// Creates an empty field without a length limit. The field is deleted together with `parent`.
    /// As with every widget, the constructor must be called from the GUI thread.
    explicit ExtendLineEdit(QWidget *parent = nullptr);
    /// Defined in the core library, so that only this library contains the virtual table of the
    /// class.
    ~ExtendLineEdit() override;
};

#endif

#ifndef EXTENDLINEEDIT_H
#define EXTENDLINEEDIT_H

#include <QLineEdit>

/**
 * The host's line edit, which behaves like QLineEdit. Plug-ins use this class for their input
 * fields so that the host can style these fields by class name.
 */
class Q_DECL_EXPORT ExtendLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    /// Creates an empty field without a length limit. Like all widgets, the field is deleted by its
    /// parent and must be created on the GUI thread.
    explicit ExtendLineEdit(QWidget *parent = nullptr);
    /// Defined out of line so that the compiler emits the virtual table only in the core library.
    ~ExtendLineEdit() override;
};

#endif

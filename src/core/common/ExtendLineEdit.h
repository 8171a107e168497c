#ifndef EXTENDLINEEDIT_H
#define EXTENDLINEEDIT_H

#include <QLineEdit>

/**
 * The host's line edit. Plug-ins use it for their entry fields, so that a style sheet of the host
 * can select these fields by the name of the class. It behaves as QLineEdit does.
 */
class Q_DECL_EXPORT ExtendLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    /// Creates an empty field without a length limit, which is deleted together with its `parent`.
    /// Must be called on the GUI thread, like every operation of a widget.
    explicit ExtendLineEdit(QWidget *parent = nullptr);
    /// Defined in the core library, which thus holds the only virtual table of the class.
    ~ExtendLineEdit() override;
};

#endif

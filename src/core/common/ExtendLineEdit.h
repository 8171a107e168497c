#ifndef EXTENDLINEEDIT_H
#define EXTENDLINEEDIT_H

#include <QLineEdit>

/** The host's line edit, so that its style reaches entry fields in every plug-in. */
class Q_DECL_EXPORT ExtendLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit ExtendLineEdit(QWidget *parent = nullptr);
    ~ExtendLineEdit() override;
};

#endif

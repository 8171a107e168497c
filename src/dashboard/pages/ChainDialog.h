#ifndef CHAINDIALOG_H
#define CHAINDIALOG_H

#include <QDialog>

#include <functional>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Dashboard
{

/** The dialog in which the user enters the name of a chain. */
class ChainDialog : public QDialog
{
    Q_OBJECT
public:
    /// The dialog displays `walk`, which describes the code and the answers of the chain. `isFree`
    /// returns true if the chain may have the given name.
    ChainDialog(const QString &walk, const std::function<bool(const QString &)> &isFree,
                QWidget *parent = nullptr);

    void setName(const QString &name);
    QString name() const;

private:
    QHBoxLayout *makeEnds();
    void look();

    const std::function<bool(const QString &)> m_isFree;
    QLineEdit *m_name;
    QLabel *m_problem;
    QPushButton *m_keep;
};

} // namespace Dashboard

#endif

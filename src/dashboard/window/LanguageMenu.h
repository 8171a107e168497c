#ifndef LANGUAGEMENU_H
#define LANGUAGEMENU_H

#include <QMenu>

class QActionGroup;

namespace Dashboard
{

/** The menu in which the user selects a language. Each language is listed with its native name. */
class LanguageMenu : public QMenu
{
    Q_OBJECT
public:
    explicit LanguageMenu(QWidget *parent = nullptr);

    /// Updates the title and the check mark.
    void retranslate();

signals:
    void chosen(const QString &code);

private slots:
    void onTriggered(QAction *action);

private:
    QActionGroup *m_group;
};

} // namespace Dashboard

#endif

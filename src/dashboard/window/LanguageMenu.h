#ifndef LANGUAGEMENU_H
#define LANGUAGEMENU_H

#include <QMenu>

class QActionGroup;

/** The languages, each in its own name. */
class LanguageMenu : public QMenu
{
    Q_OBJECT
public:
    explicit LanguageMenu(QWidget *parent = nullptr);

    /// Reads the title and the choice again.
    void retranslate();

signals:
    void chosen(const QString &code);

private slots:
    void onTriggered(QAction *action);

private:
    QActionGroup *m_group;
};

#endif

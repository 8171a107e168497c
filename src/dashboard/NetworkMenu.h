#ifndef NETWORKMENU_H
#define NETWORKMENU_H

#include <QMenu>

class QActionGroup;

/** The simulated networks to choose from, and the modem. */
class NetworkMenu : public QMenu
{
    Q_OBJECT
public:
    explicit NetworkMenu(QWidget *parent = nullptr);

    /// Builds the menu anew with this scenario file checked; empty is the default.
    void setCurrent(const QString &file);
    void retranslate();

signals:
    void chosen(const QString &file);
    /// The user wants to pick a file.
    void openRequested();

private slots:
    void onTriggered(QAction *action);

private:
    void addScenario(const QString &text, const QString &file);

    QActionGroup *m_group = nullptr;
    QString m_current;
};

#endif

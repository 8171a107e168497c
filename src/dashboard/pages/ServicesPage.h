#ifndef SERVICESPAGE_H
#define SERVICESPAGE_H

#include "device/Situation.h"
#include "Page.h"
#include "plugin/ServiceList.h"

class QFrame;
class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace Dashboard
{

class ActionCard;
class AppActions;
class IconDisc;
class PageColumn;
class RemedyButtons;

/** The cards of a group of services. The number of columns depends on the available width. */
class ServiceGroup : public QWidget
{
    Q_OBJECT
public:
    explicit ServiceGroup(QWidget *parent = nullptr);

    void setServices(const QList<Service> &services);
    void setTitle(const QString &title);
    ActionCard *firstCard() const { return m_cards.value(0); }
    QSize minimumSizeHint() const override;

signals:
    void chosen(int row);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void addCard(const Service &service);
    void arrange(int columns);
    int columnsFor(int width) const;

    QLabel *m_title;
    QGridLayout *m_grid;
    QList<ActionCard *> m_cards;
    int m_columns = 0;
};

/**
 * The Services page, with a card for each of the operator's services. Clicking a card opens the
 * services window, which describes the service before anything is sent.
 */
class ServicesPage : public Page
{
    Q_OBJECT
public:
    /// `actions` must outlive the page.
    explicit ServicesPage(AppActions *actions, QWidget *parent = nullptr);

    /// Reads the services from the plug-in's configuration again. Must be called when the folder of
    /// the plug-in or the SIM has changed.
    void readServices();
    /// Sets the name of the operator whose services are shown. `name` is empty if it is unknown.
    void setOperatorName(const QString &name);
    /// Shows the situation of the device if it prevents the services from being used.
    void setSituation(const Situation &situation);
    /// Sets whether a menu is open. In this case, the services cannot be used.
    /// Sets whether the services window is available for the SIM. Without it, no services are
    /// shown.
    void setOffered(bool isOffered);
    void setMenuOpen(bool isOpen);

    void retranslate() override;
    void setForm(Form form) override;
    QWidget *firstFocus() const override;

private:
    void makeNotice();
    QList<Service> services() const;
    void showServices();
    void update();
    bool isUsable() const;

    AppActions *const m_actions;
    QList<Service> m_services;
    QString m_operatorName;
    Situation m_situation;
    bool m_isMenuOpen = false;
    bool m_isOffered = true;
    PageColumn *m_column;
    QLabel *m_title;
    QLabel *m_intro;
    QFrame *m_notice;
    IconDisc *m_noticeIcon;
    QLabel *m_noticeTitle;
    QLabel *m_noticeText;
    RemedyButtons *m_noticeButtons;
    QLabel *m_none;
    ServiceGroup *m_byCode;
    ServiceGroup *m_byText;
};

} // namespace Dashboard

#endif

#ifndef FIRSTRUNPAGE_H
#define FIRSTRUNPAGE_H

#include <QList>

#include "device/Situation.h"
#include "Page.h"
#include "ProviderDatabase.h"

class QBoxLayout;
class QButtonGroup;
class QFrame;
class QLabel;
class QLayout;
class QMenu;
class QPushButton;
class QVBoxLayout;

namespace Dashboard
{

class DashboardSettings;
class DeviceWatcher;
class IconDisc;
class IconView;
class MenuButton;
class OperatorCodes;
class PageColumn;
class OperatorOption;

/// Returns true if FirstRunPage should be shown. Returns false during a demonstration, and if
/// `settings` is null.
bool isFirstRunDue(const DashboardSettings *settings, const DeviceWatcher &device,
                   const OperatorCodes &codes);

/** A step of the first run: an icon, a title, a text and a button. */
class FirstRunStep : public QWidget
{
    Q_OBJECT
public:
    FirstRunStep(const char *objectName, QWidget *parent);

    void setDone(const char *icon, bool isDone);
    void setTexts(const QString &title, const QString &text);
    /// Shows the button for the remedy, or hides it if the remedy is Remedy::None.
    void setRemedy(Remedy remedy);
    QPushButton *button() const { return m_button; }

signals:
    void chosen(Dashboard::Remedy remedy);

private:
    IconDisc *m_icon;
    QLabel *m_title;
    QLabel *m_text;
    QPushButton *m_button;
    Remedy m_remedy = Remedy::None;
};

/**
 * The page that replaces all other pages until the user has finished or skipped the first run. It
 * guides the user in three steps: connecting a modem, checking the SIM, and selecting the operator
 * whose codes are used.
 */
class FirstRunPage : public Page
{
    Q_OBJECT
public:
    /// The arguments must outlive the page.
    FirstRunPage(DashboardSettings *settings, const DeviceWatcher *device,
                 const OperatorCodes *codes, QMenu *languageMenu, QWidget *parent = nullptr);

    void showSituation(const Situation &situation);
    /// Updates the list of operators that match the SIM.
    void listOperators();

    void retranslate() override;
    void setForm(Form form) override;
    QWidget *firstFocus() const override;

signals:
    /// Emitted when the user clicks the button of a step or requests the demonstration.
    void chosen(Dashboard::Remedy remedy);
    void providerChosen(const Provisioning::Provider &provider);
    /// Emitted when the user decides against using an operator's codes.
    void declined();
    /// Emitted when the result of isFirstRunDue() may have changed.
    void finished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeCard();
    void arrangeButtons();
    void nameDemonstration(int room);
    void makeButtons(QVBoxLayout *card);
    void addOption(const QString &title, const QString &text);
    void clearOptions();
    void useChosen();
    void finish();
    void showChoice();
    void showSteps();
    void showRemedies();
    void passFocusOn();
    bool hasModem() const;
    bool hasSim() const;
    QString choiceText() const;
    QLayout *makeCosts();
    void limitCosts();

    DashboardSettings *const m_settings;
    const DeviceWatcher *const m_device;
    const OperatorCodes *const m_codes;
    Situation m_situation;
    QString m_listedNetwork;
    QList<Provisioning::Provider> m_providers;
    QList<OperatorOption *> m_options;
    PageColumn *m_column;
    MenuButton *m_language;
    QFrame *m_card;
    QLabel *m_title;
    QLabel *m_intro;
    FirstRunStep *m_modem;
    FirstRunStep *m_sim;
    FirstRunStep *m_choice;
    QVBoxLayout *m_list;
    QButtonGroup *m_group;
    QPushButton *m_demonstration;
    QPushButton *m_notNow;
    QPushButton *m_use;
    IconView *m_costsIcon;
    QLabel *m_costs;
    QBoxLayout *m_buttons = nullptr;
};

} // namespace Dashboard

#endif

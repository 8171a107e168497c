#ifndef SETTINGSPAGE_H
#define SETTINGSPAGE_H

#include <QList>

#include "Page.h"

class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QVBoxLayout;

namespace Dashboard
{

class DashboardSettings;
class DeviceWatcher;
class MenuButton;
class OperatorCodes;
class PageColumn;
class Segments;
class SettingsRow;
class Switch;

/** The objects that SettingsPage uses. All of them must outlive the page. */
struct SettingsParts {
    DashboardSettings *settings; // may be null; the settings are then not stored
    const DeviceWatcher *device;
    const OperatorCodes *codes;
    QMenu *deviceMenu;
    QMenu *languageMenu;
};

/** The Settings page. All settings except the text size take effect immediately. */
class SettingsPage : public Page
{
    Q_OBJECT
public:
    explicit SettingsPage(const SettingsParts &parts, QWidget *parent = nullptr);

    void retranslate() override;
    void setForm(Form form) override;
    QWidget *firstFocus() const override;

    /// Shows the selected device, for example "Automatic".
    void setDeviceChoice(const QString &text);
    /// Shows whether the prepaid/postpaid query is enabled.
    void setDetection(bool isOn);

signals:
    void operatorRequested();
    /// Emitted when the user enables or disables the prepaid/postpaid query.
    void detectionChosen(bool isOn);
    /// Emitted when the user has changed whether only the last four digits of the SIM's number are
    /// shown.
    void hidingChanged(bool hides);
    /// Emitted when the user has changed whether codes, balances and messages are stored.
    void keepingChanged(bool keeps);
    /// Emitted when any other setting has changed.
    void changed();
    /// Emitted when the user has confirmed the deletion of all balances, messages and sent codes.
    void deleteAllRequested();

private:
    struct Section {
        QLabel *heading;
        const char *textKey;
    };
    struct Row {
        SettingsRow *row;
        const char *titleKey;
        const char *textKey; // null if there is no description
    };

    void makeDevice();
    void makeAppearance();
    void makeNotifications();
    void makePrivacy();
    QVBoxLayout *addSection(const char *textKey);
    SettingsRow *addRow(QVBoxLayout *card, const char *icon, const char *titleKey,
                        const char *textKey, QWidget *control, bool isControlWide = false);
    Switch *makeSwitch(const char *objectName, bool isOn, void (SettingsPage::*chosen)(bool));
    void nameTextSizes();
    void showValues();
    void showLowBalance();
    void showDevice();
    void chooseTheme(int index);
    void chooseTextSize(int index);
    void setReducesMotion(bool isOn);
    void setNotifies(bool isOn);
    void setShowsText(bool isOn);
    void setLowBalanceOn(bool isOn);
    void setAsksDaily(bool isOn);
    void setLowBalanceAmount();
    void setHides(bool isOn);
    void setKeeps(bool isOn);
    void askToDeleteAll();

    const SettingsParts m_parts;
    Form m_form = Form::Wide;
    PageColumn *m_column;
    QLabel *m_title;
    QList<Section> m_sections;
    QList<Row> m_rows;
    SettingsRow *m_modemRow = nullptr;
    SettingsRow *m_codesRow = nullptr;
    SettingsRow *m_lowBalanceRow = nullptr;
    MenuButton *m_modem = nullptr;
    QPushButton *m_codes = nullptr;
    Switch *m_detection = nullptr;
    MenuButton *m_language = nullptr;
    Segments *m_theme = nullptr;
    Segments *m_textSize = nullptr;
    Switch *m_notifies = nullptr;
    Switch *m_showsText = nullptr;
    Switch *m_lowBalance = nullptr;
    QLineEdit *m_amount = nullptr;
    QPushButton *m_deleteAll = nullptr;
};

} // namespace Dashboard

#endif

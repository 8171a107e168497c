#ifndef USSDGENERALDLG_H
#define USSDGENERALDLG_H

#include <QList>
#include <QPair>
#include <QPointer>
#include <QWidget>

#include "PluginConfig.h"
#include "requests/USSDCommand.h"
#include "requests/USSDLogic.h"
#include "USSDProfile.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;
class TranscriptView;

/**
 * The general window. It sends commands that the user types or selects with a preset button, and
 * shows all sent and received messages in a coloured transcript. All functions must be called from
 * the GUI thread.
 *
 * In the idle state, the Send button is enabled if the input field contains text. While the window
 * is waiting for a reply, all controls that send commands are disabled. The wait ends with the
 * first reply for the component of this window. Later replies are dropped.
 */
class USSDGeneralDlg : public QWidget
{
    Q_OBJECT
public:
    USSDGeneralDlg();
    ~USSDGeneralDlg() override;

    /// Builds the window. Must be called only once.
    void InitDialog(QWidget *parent, WINDOW_MODEL model);
    /// Retranslates all visible strings except the lines of the transcript.
    void SetLanguage();
    /// Prepares the window before it is shown again. Moves the focus to the input unless the window
    /// is waiting for a reply, and clears the transcript if the window is modal.
    void ReInitDialog();
    /// Returns the size hint of the layout, or (-1, -1) if the window has not been built yet.
    QSize GetSize();
    virtual void resize(const QSize &size);
    void setProfileFocus();
    void showHideCmdBtn();
    static QString tr(const QString &key);
    /// Returns the object name of a widget for use in style sheets. `role` is the last part of the
    /// name, such as "SendButton".
    static QString objectNameOf(const char *role);

    bool isShowPreBtns();
    bool hasBeenShowPreBtns();
    bool isShowPreDescription();
    void changeAllPreBtnsStatus(bool enable);
    /// Enables or disables the payment buttons, which are the last two preset buttons.
    void changePayBtnsStatus(bool enable);

public slots:
    /// Emits clickedcloseButton(). A modal window also stops waiting for a reply. Must be called
    /// when the frame is closed. A receiver of the signal may delete this object.
    void OnClickedCloseButton();

signals:
    void closeButtonClicked();
    void clickedcloseButton();
    void preBtnClickedEvent(QString command);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void OnCloseButtonClicked();
    void OnClickedSendButton();
    void OnEditTextChanged(QString text);
    void OnActivated(int index);
    void setCommandDesByValue(const QString &value);
    void OnResponseReceived(int component, QString text);
    void clearHistory();
    void handlePreBtnClicked(const QString &command);
    void OnPaymentEdit();
    void OnUSSDCmdEdit();
    void OnPreBtnClicked();
    void OnClickedEditButton();

private:
    typedef QList<QPair<QPushButton *, Formats::USSDProfile>> PreBtnList;

    bool createWidgets();
    void getConfigure();
    void initWidgets();
    void initObjectNames();
    void initCombo();
    void initAccessibility();
    void initFixedSizes();
    void layout();
    void connectWidgets();
    void initTabOrder();

    void changeSendButtonStatus();
    /// Sends a command. If the command is rejected, shows the failure in place of a reply. Returns
    /// true if a reply is expected.
    bool sendCommand(const QString &command);
    void parkFocus();
    bool isFocusElsewhere() const;
    bool onResponseReceived();
    void appendToCmdHistory(QString text, bool sent);
    void showPromptForWaitingResponse(bool show);
    void enableClearHistoryBtn(bool enable);
    bool IsLimitValid(const QString &text);

    void initPreBtns();
    void getProfileList();
    void addProfilesToCombo();
    int getPreBtnMaxTextWidth();
    void updatePreBtnWidth(int width);
    void updatePreBtnsText();
    void resetWidgetsWidth4DyncBtnArea();
    void setLayoutMargins(bool showPreBtns, bool showPreDescription);
    void findPosAndAddElements(int &row);
    void addPreBtnOfSlot(int slot, int &row);
    QPushButton *createPreBtn(int slot);
    void addFixedElements(int row);
    void addBottomButtons(int row);
    void setRightLayoutBottomButtons();
    void update4EditCommandSave();
    void updateUssdCmdProfileList();
    int indexOfPreBtn(const QObject *button) const;
    bool isPayBtn(int index) const;

    WINDOW_MODEL m_windowModel;
    bool m_bWaiting;
    QLabel *m_pPromptLabel;
    TranscriptView *m_pHistoryView;
    QLabel *m_pInfoLabel;
    QComboBox *m_pProfilesCombo;
    QPushButton *m_pSendButton;
    QLabel *m_pDescriptionLabel;
    QPushButton *m_pClearButton;
    QPushButton *m_pEditButton;
    QPushButton *m_pCloseButton;
    QPointer<USSDLogic> m_pLogic; // not owned
    QList<Formats::USSDProfile> m_listProfiles;
    PreBtnList *m_pListPreBtns;
    Formats::ClearHistory m_clearBtnSetting;
    Formats::CmdEdit m_cmdEditSetting;
    QLabel *m_pInfoNumLabel;
    QLineEdit *m_pPaymentEdit;
    QString m_strLastValidPayment;
    QString m_strAllowedPayment;
    QLineEdit *m_pUSSDCmdEdit;
    QWidget *m_pContainer;
    QGridLayout *m_pMainGrid;
    QVBoxLayout *m_pPreBtnsBox[3];
};

#endif

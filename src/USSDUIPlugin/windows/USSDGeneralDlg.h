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
 * The general window: a typed command or a preset button is sent, a coloured transcript shows what
 * went out and what came back. GUI thread only.
 *
 * Idle, Send follows the text of the entry field. While an answer is awaited everything that sends
 * is disabled; the first answer for this dialog's component ends that, and a later one is dropped.
 */
class USSDGeneralDlg : public QWidget
{
    Q_OBJECT
public:
    USSDGeneralDlg();
    ~USSDGeneralDlg() override;

    /// Builds the dialog; called once.
    void InitDialog(QWidget *parent, WINDOW_MODEL model);
    /// Re-reads every visible text. Lines of the transcript stay in their language.
    void SetLanguage();
    /// Makes a dialog that is shown again ready for input.
    void ReInitDialog();
    /// The layout's size hint; (-1, -1) before there is a layout.
    QSize GetSize();
    virtual void resize(const QSize &size);
    void setProfileFocus();
    void showHideCmdBtn();
    static QString tr(const QString &key);
    /// The style sheet's name for a widget with this role.
    static QString objectNameOf(const char *role);

    bool isShowPreBtns();
    bool hasBeenShowPreBtns();
    bool isShowPreDescription();
    void changeAllPreBtnsStatus(bool enable);
    /// The last two preset buttons only.
    void changePayBtnsStatus(bool enable);

public slots:
    /// The outer window closes; the dialog may be deleted when this returns.
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
    typedef QList<QPair<QPushButton *, USSDProfile>> PreBtnList;

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
    /// Sends, and shows the failure as an answer when the request is refused.
    /// True when an answer is awaited.
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
    QList<USSDProfile> m_listProfiles;
    PreBtnList *m_pListPreBtns;
    ClearHistory m_clearBtnSetting;
    CmdEdit m_cmdEditSetting;
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

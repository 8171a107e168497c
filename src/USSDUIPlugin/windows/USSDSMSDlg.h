#ifndef USSDSMSDLG_H
#define USSDSMSDLG_H

#include <QList>
#include <QPointer>
#include <QWidget>

#include "requests/USSDCommand.h"
#include "SmsLayout.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRegExpValidator;
class QTreeWidget;
class QXmlStreamReader;
class USSDLogic;

/** The service that is shown. */
struct CCommandWidget {
    QString command;                   // USSD code or text of the short message, perhaps with "%s"
    QString number;                    // where the short message goes
    int minLength = 0;                 // fewest characters of the input
    int limit = 0;                     // most characters of the input
    int kind = CONTROL_KIND_NONE;      // how it is sent
    QPushButton *sendButton = nullptr; // null when the service has none, also the two below
    QLineEdit *inputField = nullptr;
    QLabel *resultLabel = nullptr;
};

/**
 * Services of the operator: a tree lists them, the controls of the selected one stand beside it,
 * and its button sends a USSD command or a short message. GUI thread only.
 *
 * Tree and controls are laid out from the configuration file, which is read when the dialog is
 * made. Busy from a click that sends until the outcome comes; tree, button and field are disabled
 * then.
 */
class CUSSDSMSDlg : public QWidget
{
    Q_OBJECT
public:
    CUSSDSMSDlg();
    ~CUSSDSMSDlg() override;

    /// Builds the dialog; called once.
    void InitDialog();
    /// Reads the layout anew and listens to the logic when it was read to its end. The constructor
    /// does so.
    void InitConfig();
    /// False when the reader has no device or the document is not well-formed. What was read up to
    /// the fault is kept.
    bool ReadFile(QXmlStreamReader &reader);
    /// Reads one "Dialog" element, whose start element the reader stands on.
    void ReadWidgetInfo(QXmlStreamReader &reader);
    /// Makes the rows anew; SetLanguage() gives them their texts.
    void InitTree();
    /// Places the tree and selects the current service in it.
    void SetTreeGeometry();
    /// Shows the service that these controls describe, and keeps a copy of them. False, and nothing
    /// changes, unless there is one control for each of the fixed widgets.
    bool SetWidgetGeometry(QList<CWidgetItemInfo *> controls, bool mirrored);
    void SendUSSDCommand(_COMPONENT component, QString command);
    /// 0 when the device took the message; how it fared comes through OnSendResult().
    int SendSMS(QString *number, QString *text);
    /// Re-reads every visible text and follows the layout direction. What was entered, and what the
    /// network said, stay.
    void SetLanguage();
    /// As the file says, whether a window can have that size or not.
    QSize GetSize();

    QSize sizeHint() const override;
    static QString tr(const QString &key);
    /// The style sheet's name for a widget with this role.
    static QString objectNameOf(const char *role);

public slots:
    void OnTreeItemSelectionChanged();
    void OnTextChanged(QString text);
    void OnClickedUSSDSMSButton();
    void OnResponseUSSDSMSReceived(int component, QString text);
    void OnSendResult(bool ok, QString number, QString text);
    void OnCanSendSMS(bool can);
    /// The outer window closes; the dialog may be deleted when this returns.
    void OnClickedCloseButton();

signals:
    void clickedcloseButton();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void forgetLayout();
    void readLayoutFile(const QString &path);
    void logComplaints() const;
    void connectLogic();

    void createWidgets();
    QLabel *initLabel(QLabel *label, const char *role);
    void createInput();
    void connectWidgets();
    void addRows();
    void translateTree();
    const CTreeItem *currentEntry() const;

    void takeControls(const QList<CWidgetItemInfo *> &controls);
    void takeCommand();
    void placeControls(bool mirrored);
    void translateControls();
    void translateControl(int position);
    int windowWidth() const;
    void limitInput(const CWidgetItemInfo &control);
    void enableFirstSend();
    void forgetService();

    void fillPlaceholder();
    bool mayStart();
    bool lacksReadiness() const;
    void startSending();
    void startSms();
    void endSending();
    void parkFocus();
    void returnFocus();
    void enableSend(bool enable);
    void showResult(const QString &text);
    void setResultText(const QString &text);

    SmsLayout m_layout;
    QTreeWidget *m_pTree;
    QLabel *m_pInfoLabel;
    QLabel *m_pCaptionLabel;
    QLineEdit *m_pInputEdit;
    QPushButton *m_pSendButton;
    QLabel *m_pResultLabel;
    QRegExpValidator *m_pValidator;
    QList<QWidget *> m_listWidgets; // the five above, in the order of a group's controls
    // What they show. Values: the group may be replaced meanwhile.
    QList<CWidgetItemInfo> m_listControls;
    bool m_bBusy;
    bool m_bFocusParked;
    int m_nSelected; // entry of the tree, -1 while there is none
    CCommandWidget m_command;
    QString m_strResultKey;       // of the text in the result label; empty when it has none
    QPointer<USSDLogic> m_pLogic; // not owned; null as long as its answers would not be heard
};

#endif

#ifndef USSDSMSDLG_H
#define USSDSMSDLG_H

#include <QList>
#include <QPointer>
#include <QWidget>

#include "QtCompat.h"
#include "requests/USSDCommand.h"
#include "SmsLayout.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QXmlStreamReader;
class USSDLogic;

/** The command of the current service and the widgets that it uses. */
struct CCommandWidget {
    QString command;   // USSD code, or text of the short message; may contain "%s"
    QString number;    // recipient of the short message
    int minLength = 0; // minimum length of the input
    int limit = 0;     // maximum length of the input
    int kind = Formats::CONTROL_KIND_NONE; // how to send the command; an SmsControlKind
    // Each of these pointers is null if the service does not use the widget.
    QPushButton *sendButton = nullptr;
    QLineEdit *inputField = nullptr;
    QLabel *resultLabel = nullptr;
};

/**
 * The window for the operator's services. The services are listed in a tree. Next to the tree are
 * the controls of the selected service, which include an input field and a button that sends a USSD
 * command or a short message. All functions must be called from the GUI thread.
 *
 * The constructor reads the layout of the tree and the controls from the configuration file. The
 * window is busy from the time when a command or a short message is sent until its outcome arrives.
 * While it is busy, the tree, the button and the input field are disabled.
 */
class CUSSDSMSDlg : public QWidget
{
    Q_OBJECT
public:
    CUSSDSMSDlg();
    ~CUSSDSMSDlg() override;

    /// Builds the window. Must be called only once.
    void InitDialog();
    /// Reads the layout from the file, and connects the window to the logic object if the file is
    /// well-formed. The constructor also calls this function.
    void InitConfig();
    /// Reads the layout. Returns false if the reader has no device or if the document is not
    /// well-formed. The elements that precede the error are kept.
    bool ReadFile(QXmlStreamReader &reader);
    /// Reads one "Dialog" element. The reader must be at its start element.
    void ReadWidgetInfo(QXmlStreamReader &reader);
    /// Rebuilds the rows of the tree. SetLanguage() later sets their texts.
    void InitTree();
    /// Places the tree and selects the row of the current service.
    void SetTreeGeometry();
    /// Shows the service that the controls describe and stores copies of the controls. Returns
    /// false and has no effect if the number of controls differs from the number of fixed widgets.
    bool SetWidgetGeometry(QList<Formats::CWidgetItemInfo *> controls, bool mirrored);
    void SendUSSDCommand(_COMPONENT component, QString command);
    /// Sends a short message. Returns 0 if the device accepted the message; OnSendResult() is then
    /// called with the outcome.
    int SendSMS(QString *number, QString *text);
    /// Retranslates all visible strings and updates the layout direction. The user's input and the
    /// network's replies are not changed.
    void SetLanguage();
    /// Returns the size specified in the file, even if it is not a valid window size.
    QSize GetSize();

    QSize sizeHint() const override;
    static QString tr(const QString &key);
    /// Returns the object name of a widget for use in style sheets. `role` is the last part of the
    /// name, such as "SendButton".
    static QString objectNameOf(const char *role);

public slots:
    void OnTreeItemSelectionChanged();
    void OnTextChanged(QString text);
    void OnClickedUSSDSMSButton();
    void OnResponseUSSDSMSReceived(int component, QString text);
    void OnSendResult(bool ok, QString number, QString text);
    void OnCanSendSMS(bool can);
    /// Removes the commands of this window from the queue and emits clickedcloseButton(). Must be
    /// called when the frame is closed. A receiver of the signal may delete this object.
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
    const Formats::CTreeItem *currentEntry() const;

    void takeControls(const QList<Formats::CWidgetItemInfo *> &controls);
    void takeCommand();
    void placeControls(bool mirrored);
    void translateControls();
    void translateControl(int position);
    int windowWidth() const;
    void limitInput(const Formats::CWidgetItemInfo &control);
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

    Formats::SmsLayout m_layout;
    QTreeWidget *m_pTree;
    QLabel *m_pInfoLabel;
    QLabel *m_pCaptionLabel;
    QLineEdit *m_pInputEdit;
    QPushButton *m_pSendButton;
    QLabel *m_pResultLabel;
    QtCompat::RegExpValidator *m_pValidator;
    QList<QWidget *> m_listWidgets; // labels, input field and button, in the order of Position
    // Copies of the controls that describe m_listWidgets. They remain valid if the layout, which
    // contains the originals, is read again.
    QList<Formats::CWidgetItemInfo> m_listControls;
    bool m_bBusy;
    bool m_bFocusParked;
    int m_nSelected; // number of the selected entry, or -1
    CCommandWidget m_command;
    QString m_strResultKey;       // text key of the result label; empty for network replies
    QPointer<USSDLogic> m_pLogic; // not owned; null if the window is not connected to the logic
};

#endif

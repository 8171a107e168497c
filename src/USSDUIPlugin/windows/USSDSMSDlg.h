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

/** The current service: the command that it sends and the widgets that it uses. */
struct CCommandWidget {
    QString command;   // USSD code, or text of the short message; may contain "%s"
    QString number;    // recipient of the short message
    int minLength = 0; // minimum number of characters in the input
    int limit = 0;     // maximum number of characters in the input
    int kind = Formats::CONTROL_KIND_NONE; // an SmsControlKind: how to send the command
    // Each of the following pointers is null if the service does not have the widget.
    QPushButton *sendButton = nullptr;
    QLineEdit *inputField = nullptr;
    QLabel *resultLabel = nullptr;
};

/**
 * The window for the operator's services. A tree lists the services. The controls of the selected
 * service are shown next to the tree. They include a button that sends a USSD command or a short
 * message, and an input field. All functions must be called from the GUI thread.
 *
 * The tree and the controls are placed as specified in the configuration file, which the
 * constructor reads. When the user sends a command or a short message, the window becomes busy and
 * remains busy until the outcome arrives. Meanwhile, the tree, the button and the input field are
 * disabled.
 */
class CUSSDSMSDlg : public QWidget
{
    Q_OBJECT
public:
    CUSSDSMSDlg();
    ~CUSSDSMSDlg() override;

    /// Builds the window. Must be called only once.
    void InitDialog();
    /// Reads the layout again, and connects to the logic if the complete layout was read. The
    /// constructor calls this function.
    void InitConfig();
    /// Reads the layout. Returns false if the reader has no device or the document is not
    /// well-formed. The elements before the error are kept.
    bool ReadFile(QXmlStreamReader &reader);
    /// Reads one "Dialog" element. The reader must be at its start element.
    void ReadWidgetInfo(QXmlStreamReader &reader);
    /// Replaces the rows of the tree. SetLanguage() sets the strings of the rows.
    void InitTree();
    /// Places the tree and selects the current service in the tree.
    void SetTreeGeometry();
    /// Shows the service that these controls describe, and stores a copy of them. If the number of
    /// controls differs from the number of fixed widgets, returns false and has no effect.
    bool SetWidgetGeometry(QList<Formats::CWidgetItemInfo *> controls, bool mirrored);
    void SendUSSDCommand(_COMPONENT component, QString command);
    /// Sends a short message. Returns 0 if the device accepted the message. OnSendResult() receives
    /// the outcome.
    int SendSMS(QString *number, QString *text);
    /// Updates every visible string and the layout direction to the current language. The user's
    /// input and the network's replies remain unchanged.
    void SetLanguage();
    /// Returns the size specified in the file, even if a window cannot have this size.
    QSize GetSize();

    QSize sizeHint() const override;
    static QString tr(const QString &key);
    /// Returns the object name of the widget with this role. Style sheets use this name.
    static QString objectNameOf(const char *role);

public slots:
    void OnTreeItemSelectionChanged();
    void OnTextChanged(QString text);
    void OnClickedUSSDSMSButton();
    void OnResponseUSSDSMSReceived(int component, QString text);
    void OnSendResult(bool ok, QString number, QString text);
    void OnCanSendSMS(bool can);
    /// Handles the closing of the outer window. The object may have been deleted when this function
    /// returns.
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
    // Copies of the controls in m_listWidgets, because the original group may be replaced.
    QList<Formats::CWidgetItemInfo> m_listControls;
    bool m_bBusy;
    bool m_bFocusParked;
    int m_nSelected; // number of the selected entry; -1 if there is none
    CCommandWidget m_command;
    QString m_strResultKey; // text key of the message in the result label; empty if there is none
    QPointer<USSDLogic> m_pLogic; // not owned; null while the window is not connected to the logic
};

#endif

#include "GeneralArea.h"

#include <QFocusEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

#include "IUIPlugin.h"
#include "plugin/LoadedPlugin.h"

namespace Dashboard
{

namespace
{

const int CLIPPED_SIDE = 46; // pixels; the plug-in's margin is 70 pixels, of which 24 remain
const int CLIPPED_TOP = 4;
const int COMPACT_MARGIN = 12;

/// Returns true if the compact area hides this widget.
bool isPresetPart(const QObject *object)
{
    const QString name = object->objectName();
    return name == QLatin1String("USSDUIPlugin_AdvancedDialog_PreButton") ||
           name == QLatin1String("USSDUIPlugin_AdvancedDialog_PaymentEdit") ||
           name == QLatin1String("USSDUIPlugin_AdvancedDialog_InfoNumLabel");
}

/// Returns true if the user types or has moved the focus with a key. The plug-in also moves the
/// focus when a reply arrives.
bool isByKeyboard(const QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        return true;
    return event->type() == QEvent::FocusIn &&
           static_cast<const QFocusEvent *>(event)->reason() == Qt::ShortcutFocusReason;
}

} // namespace

GeneralArea::GeneralArea(LoadedPlugin *plugin, QWidget *parent)
    : QScrollArea(parent), m_plugin(plugin), m_canvas(new QWidget), m_text(new QLabel(m_canvas))
{
    setObjectName(QLatin1String("Dashboard_GeneralArea"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->hide();
    m_canvas->setProperty("box", QLatin1String("gen"));
    m_canvas->installEventFilter(this);
    setWidget(m_canvas);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
}

/// Scrolls to the command field, so that users see what they type.
void GeneralArea::showField()
{
    if (QLineEdit *field = general().commandEdit())
        ensureWidgetVisible(field, 0, COMPACT_MARGIN);
}

void GeneralArea::showWindow()
{
    if (!m_plugin->isUsable())
        return;
    showText(QString());
    QRect rect = m_canvas->rect();
    m_plugin->plugin()->ShowWindow(m_canvas, rect);
    m_isShown = true;
    general().hideUnusedPresets();
    watchPresets();
    if (QLineEdit *field = general().commandEdit())
        field->installEventFilter(this);
    setWindowEnabled(m_isEnabled);
    makeRoom();
    fit();
}

void GeneralArea::hideWindow()
{
    m_isShown = false;
    if (m_plugin->isUsable())
        m_plugin->plugin()->Hide();
}

void GeneralArea::showText(const QString &text)
{
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
}

void GeneralArea::setWindowEnabled(bool isEnabled)
{
    m_isEnabled = isEnabled;
    if (QWidget *general = window())
        general->setEnabled(isEnabled);
}

/// Returns the plug-in's window, which is the only child of the canvas that this class has not
/// created.
QWidget *GeneralArea::window() const
{
    for (QObject *child : m_canvas->children()) {
        QWidget *widget = qobject_cast<QWidget *>(child);
        if (widget && widget != m_text)
            return widget;
    }
    return nullptr;
}

bool GeneralArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_canvas && event->type() == QEvent::Resize) {
        m_text->setGeometry(m_canvas->rect());
        fit();
    } else if (watched == m_canvas &&
               (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)) {
        // A hidden canvas does not receive layout requests.
        makeRoom();
        fit();
    } else if (m_isCompact && event->type() == QEvent::ShowToParent && isPresetPart(watched)) {
        QMetaObject::invokeMethod(
            this, [this] { hidePresets(); }, Qt::QueuedConnection);
    } else if (watched != m_canvas) {
        if (watched->objectName() == QLatin1String(GeneralWindow::COMMAND_EDIT) &&
            isByKeyboard(event))
            showField();
        return QScrollArea::eventFilter(watched, event);
    }
    return false;
}

// ---- size ----------------------------------------------------------------------------------

/// Returns the margins of the window that are outside the canvas.
QMargins GeneralArea::clipped() const
{
    if (m_isCompact && general().isComplete())
        return compactMargins();
    return QMargins(CLIPPED_SIDE, CLIPPED_TOP, CLIPPED_SIDE, CLIPPED_TOP);
}

/// Returns the margins to clip so that only a small margin remains around the transcript, whose
/// position depends on the layout.
QMargins GeneralArea::compactMargins() const
{
    if (QLayout *layout = window()->layout())
        layout->activate();
    const QRect transcript = general().history()->geometry();
    const int left = transcript.left() - COMPACT_MARGIN;
    const int right = window()->width() - transcript.right() - 1 - COMPACT_MARGIN;
    return QMargins(left, CLIPPED_TOP, right, CLIPPED_TOP);
}

void GeneralArea::makeRoom()
{
    const QWidget *general = window();
    if (!general)
        return;
    const QMargins outside = clipped();
    const QSize least = general->minimumSizeHint();
    m_canvas->setMinimumSize(least.width() - outside.left() - outside.right(),
                             least.height() - outside.top() - outside.bottom());
}

void GeneralArea::fit()
{
    if (!m_isShown || !m_plugin->isUsable())
        return;
    QRect rect = m_canvas->rect().marginsAdded(clipped());
    m_plugin->plugin()->FitSize(rect);
}

// ---- preset buttons ------------------------------------------------------------------------

void GeneralArea::setCompact(bool isCompact)
{
    if (isCompact == m_isCompact)
        return;
    m_isCompact = isCompact;
    if (isCompact)
        hidePresets();
    else
        showPresets();
    makeRoom();
    fit();
}

/// Observes the preset buttons, because the plug-in shows buttons when the user has saved codes.
void GeneralArea::watchPresets()
{
    for (QWidget *part : m_canvas->findChildren<QWidget *>()) {
        if (isPresetPart(part)) {
            part->removeEventFilter(this);
            part->installEventFilter(this);
        }
    }
    if (m_isCompact)
        hidePresets();
}

/// Hides the preset buttons and the field for their numbers. If the plug-in has shown new buttons
/// since the last call, showPresets() will show these buttons instead of the previous ones.
void GeneralArea::hidePresets()
{
    QList<QPointer<QWidget>> hidden;
    for (QWidget *part : m_canvas->findChildren<QWidget *>()) {
        if (isPresetPart(part) && !part->isHidden()) {
            hidden << part;
            part->hide();
        }
    }
    if (hidden.isEmpty())
        return;
    for (const QPointer<QWidget> &part : m_hidden) {
        if (part && !qobject_cast<QPushButton *>(part.data()))
            hidden << part; // the plug-in shows only the buttons again, but not the other widgets
    }
    m_hidden = hidden;
    general().widenHistory(); // otherwise, the empty columns would take up space
    makeRoom();
    fit();
}

void GeneralArea::showPresets()
{
    for (const QPointer<QWidget> &part : m_hidden) {
        if (part)
            part->show();
    }
    m_hidden.clear();
}

} // namespace Dashboard

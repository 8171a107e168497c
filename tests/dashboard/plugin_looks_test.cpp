#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QTreeWidget>

#include "ExtendDialog.h"
#include "HostState.h"
#include "IUSSD.h"
#include "Languages.h"
#include "look/Look.h"
#include "plugin/GeneralWindow.h"
#include "plugin/LoadedPlugin.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const int EM_AT_100_PERCENT = 14; // in pixels
const int ROUNDING = 1;           // pixels that may be lost when a layout distributes its height

QWidget *openFrame()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && qobject_cast<ExtendDialog *>(widget))
            return widget;
    }
    return nullptr;
}

QString describe(const QWidget *widget)
{
    return QString(latin1("%1 %2"))
        .arg(latin1(widget->metaObject()->className()), widget->objectName());
}

QRect placeIn(const QWidget *frame, const QWidget *widget)
{
    return QRect(widget->mapTo(frame, QPoint()), widget->size());
}

/// Returns the smallest size at which the widget shows its complete content.
QSize needed(const QWidget *widget)
{
    if (const QLabel *label = qobject_cast<const QLabel *>(widget); label && label->wordWrap())
        return QSize(0, label->heightForWidth(label->width()));
    if (qobject_cast<const QLineEdit *>(widget))
        return QSize(0, widget->minimumSizeHint().height());
    return widget->minimumSizeHint();
}

QList<QWidget *> controlsIn(const QWidget *frame)
{
    QList<QWidget *> controls;
    for (QWidget *widget : frame->findChildren<QWidget *>()) {
        const bool isControl =
            qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget) ||
            qobject_cast<QLabel *>(widget) || qobject_cast<QAbstractScrollArea *>(widget);
        const bool isPart =
            qobject_cast<QAbstractScrollArea *>(widget->parentWidget()) ||
            qobject_cast<QAbstractItemView *>(widget->parentWidget()->parentWidget());
        if (isControl && !isPart && widget->isVisibleTo(frame))
            controls << widget;
    }
    return controls;
}

/// Returns the plug-in's window in the frame. If the frame does not fit on the screen, the window
/// is inside a scroll area.
const QWidget *contentOf(const QWidget *frame)
{
    const QWidget *child = frame->layout()->itemAt(0)->widget();
    const QScrollArea *area = qobject_cast<const QScrollArea *>(child);
    return area ? area->widget() : child;
}

/// Returns true if the window is large enough for its content. Otherwise, the layout would reduce
/// the margins.
bool hasRoom(const QWidget *content)
{
    const QSize least = content->layout() ? content->layout()->minimumSize() : QSize();
    return least.width() <= content->width() && least.height() <= content->height() + ROUNDING;
}

/// Returns a description of the first layout error in the window, or an empty string.
QString faultIn(const QWidget *window)
{
    if (!hasRoom(window))
        return latin1("the window is smaller than its content");
    const QList<QWidget *> controls = controlsIn(window);
    for (int i = 0; i < controls.size(); ++i) {
        const QWidget *widget = controls.at(i);
        const QRect place = placeIn(window, widget);
        if (!window->rect().contains(place))
            return describe(widget) + latin1(" is outside");
        const QSize least = needed(widget);
        if (place.height() < least.height() - ROUNDING || place.width() < least.width() - ROUNDING)
            return QString(latin1("%1 is cut off: %2x%3 instead of %4x%5"))
                .arg(describe(widget))
                .arg(place.width())
                .arg(place.height())
                .arg(least.width())
                .arg(least.height());
        for (int j = i + 1; j < controls.size(); ++j)
            if (place.intersects(placeIn(window, controls.at(j))))
                return describe(widget) + latin1(" overlaps ") + describe(controls.at(j));
    }
    return controls.size() > 2 ? QString() : latin1("the window is empty");
}

} // namespace

/** Tests the plug-in's windows with the dashboard's style sheet. */
class PluginLooksTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUpClass() override
    {
        Look::instance().start();
        m_font = QApplication::font();
    }

    void setUp() override
    {
        m_plugin.reset(new LoadedPlugin);
        const PluginFailure failure = m_plugin->load(LoadedPlugin::installedFile());
        QVERIFY2(m_plugin->isUsable(), qPrintable(failure.text()));
    }

    void tearDown() override
    {
        m_plugin.reset();
        HostCore::HostState::setShuttingDown(false);
        HostCore::Languages::setCurrent(latin1("en"));
        QApplication::setFont(m_font);
    }

private:
    static void setTextSize(int percent)
    {
        QFont font = QApplication::font();
        font.setPixelSize(qRound(EM_AT_100_PERCENT * percent / 100.0));
        QApplication::setFont(font);
    }

    QScopedPointer<LoadedPlugin> m_plugin;
    QFont m_font;

private slots:
    void nothingIsCutOff_data()
    {
        QTest::addColumn<int>("window");
        QTest::addColumn<int>("percent");
        QTest::addColumn<QString>("language");
        const struct {
            const char *name;
            int window;
            QList<int> percents;
        } windows[] = {{"general", PAID_TYPE_GENERAL, {100, 130}},
                       {"prepaid", PAID_TYPE_PREPAID, {100, 130, 200}},
                       {"postpaid", PAID_TYPE_POSTPAID, {100, 130, 200}},
                       {"services", PAID_TYPE_USSD_SMS, {100, 130}}};
        for (const auto &each : windows)
            for (const int percent : each.percents)
                for (const QString &language : HostCore::Languages::codes())
                    QTest::addRow("%s %d %s", each.name, percent, qPrintable(language))
                        << each.window << percent << language;
    }

    void nothingIsCutOff()
    {
        QFETCH(int, window);
        QFETCH(int, percent);
        QFETCH(QString, language);
        QVERIFY(HostCore::Languages::setCurrent(language));
        setTextSize(percent);
        m_plugin->notifyLanguageChange();
        QCOMPARE(m_plugin->ussd()->DoPrePostPaidModal(static_cast<PAID_TYPE>(window)), 1);
        drainEvents();
        const QWidget *frame = openFrame();
        QVERIFY(frame);
        const QWidget *edit = frame->findChild<QLineEdit *>(latin1(GeneralWindow::COMMAND_EDIT));
        QVERIFY2(!edit || edit->width() > 7 * Look::instance().em(), "no room for a code");
        const QString fault = faultIn(contentOf(frame));
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
};

USSD_TEST_MAIN(PluginLooksTest)
#include "plugin_looks_test.moc"

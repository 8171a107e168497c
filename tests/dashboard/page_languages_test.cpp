#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

#include "Languages.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "pages/GeneralArea.h"
#include "SimTest.h"

using namespace Dashboard;

namespace
{

// The tested widths of the window in pixels: two for each form, starting with the minimum width.
const int WIDTHS[] = {360, 600, 650, 900, 930, 1120};
const PageId PAGES[] = {PageId::Home, PageId::Codes, PageId::Services, PageId::Messages,
                        PageId::Settings};

QString nameOf(const QWidget *widget)
{
    QString name = QLatin1String(widget->metaObject()->className());
    name += QLatin1Char(' ') + widget->objectName();
    const QAbstractButton *button = qobject_cast<const QAbstractButton *>(widget);
    const QLabel *label = qobject_cast<const QLabel *>(widget);
    return name + QLatin1Char(' ') + (button ? button->text() : label ? label->text() : QString());
}

/// Returns true if the area has a horizontal scroll bar, or would need one.
bool isTooWide(const QScrollArea *area)
{
    if (area->horizontalScrollBar()->isVisible())
        return true;
    const bool isClipped = qobject_cast<const GeneralArea *>(area); // clips the plug-in's window
    return !isClipped && area->widget()->minimumSizeHint().width() > area->viewport()->width();
}

/// Returns true if the widget has less room than its text needs. Labels that elide or wrap their
/// text are never cut, and neither are the plug-in's preset buttons, which elide their text.
bool isCut(const QWidget *widget)
{
    const QLabel *label = qobject_cast<const QLabel *>(widget);
    if (label)
        return !label->wordWrap() && !qobject_cast<const ElidedLabel *>(label) &&
               !label->text().isEmpty() && label->width() < label->sizeHint().width();
    const QPushButton *button = qobject_cast<const QPushButton *>(widget);
    return button && !button->text().isEmpty() && !button->text().endsWith(QChar(0x2026)) &&
           button->width() < button->minimumSizeHint().width();
}

/// Returns true if the button shows only an icon, and lacks a tool tip or a name for screen
/// readers.
bool isUnexplained(const QWidget *widget)
{
    const QPushButton *button = qobject_cast<const QPushButton *>(widget);
    return button && button->text().isEmpty() && !button->icon().isNull() &&
           (button->toolTip().isEmpty() || button->accessibleName().isEmpty());
}

} // namespace

/** Tests every page of the window in every language and form. */
class PageLanguagesTest : public SimTest
{
    Q_OBJECT
protected:
    void setUp() override;

private slots:
    void nothingIsWiderThanTheWindow_data() { addLanguages(); }
    void nothingIsWiderThanTheWindow();
    void nothingIsCut_data() { addLanguages(); }
    void nothingIsCut();
    void everyIconIsExplained_data() { addLanguages(); }
    void everyIconIsExplained();

private:
    void addLanguages();
    /// Shows every page at every width, and returns the widgets for which the function returns
    /// true.
    template <typename Widget>
    QStringList found(bool (*isWrong)(const Widget *));
};

void PageLanguagesTest::setUp()
{
    SimTest::setUp();
    Look::instance().start();
    QFont font = QApplication::font();
    font.setPixelSize(14); // the widths refer to this font
    QApplication::setFont(font);
    openDashboard();
}

void PageLanguagesTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString &code : HostCore::Languages::codes())
        QTest::newRow(qPrintable(code)) << code;
}

template <typename Widget>
QStringList PageLanguagesTest::found(bool (*isWrong)(const Widget *))
{
    QStringList wrong;
    for (const int width : WIDTHS) {
        window().resize(width, 720);
        for (const PageId page : PAGES) {
            window().showPage(page);
            drainEvents();
            for (const Widget *widget : window().findChildren<Widget *>()) {
                if (widget->isVisible() && isWrong(widget))
                    wrong << QString::number(width) + QLatin1String(": ") + nameOf(widget);
            }
        }
        if (window().width() != width)
            wrong << QString::number(width) + QLatin1String(": the window is wider");
    }
    wrong.removeDuplicates();
    return wrong;
}

void PageLanguagesTest::nothingIsWiderThanTheWindow()
{
    QFETCH(QString, language);
    window().setLanguage(language);
    QCOMPARE(found<QScrollArea>(isTooWide).join(QLatin1Char('\n')), QString());
}

void PageLanguagesTest::nothingIsCut()
{
    QFETCH(QString, language);
    window().setLanguage(language);
    QCOMPARE(found<QWidget>(isCut).join(QLatin1Char('\n')), QString());
}

void PageLanguagesTest::everyIconIsExplained()
{
    QFETCH(QString, language);
    window().setLanguage(language);
    QCOMPARE(found<QWidget>(isUnexplained).join(QLatin1Char('\n')), QString());
}

USSD_TEST_MAIN(PageLanguagesTest)
#include "page_languages_test.moc"

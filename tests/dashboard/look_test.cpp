#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "look/Controls.h"
#include "look/Icons.h"
#include "look/Look.h"
#include "look/StyleSheet.h"
#include "UssdTest.h"

using namespace Dashboard;

Q_DECLARE_METATYPE(Dashboard::Token)
Q_DECLARE_METATYPE(Dashboard::Shade)

namespace
{

const double TEXT_CONTRAST = 4.5;
const double OUTLINE_CONTRAST = 3;

struct Pair {
    Token first;
    Token second;
    double atLeast;
};

// The transcript's colours are not listed, because they are checked when the configuration is read.
const Pair PAIRS[] = {
    {Token::Text, Token::Surface, TEXT_CONTRAST},
    {Token::Text, Token::Bg, TEXT_CONTRAST},
    {Token::Text, Token::Sunken, TEXT_CONTRAST},
    {Token::Text2, Token::Surface, TEXT_CONTRAST},
    {Token::Text2, Token::Bg, TEXT_CONTRAST},
    {Token::Text2, Token::Sunken, TEXT_CONTRAST},
    {Token::Text3, Token::Surface, TEXT_CONTRAST},
    {Token::Text3, Token::Bg, TEXT_CONTRAST},
    {Token::Text3, Token::Sunken, TEXT_CONTRAST},
    {Token::OnAccent, Token::Accent, TEXT_CONTRAST},
    {Token::OnAccent, Token::AccentHover, TEXT_CONTRAST},
    {Token::OnAccent, Token::AccentPress, TEXT_CONTRAST},
    {Token::AccentText, Token::Surface, TEXT_CONTRAST},
    {Token::AccentText, Token::Bg, TEXT_CONTRAST},
    {Token::AccentText, Token::AccentSoft, TEXT_CONTRAST},
    {Token::Text, Token::AccentSoft, TEXT_CONTRAST},
    {Token::Text2, Token::AccentSoft, TEXT_CONTRAST},
    {Token::Text3, Token::AccentSoft, TEXT_CONTRAST},
    {Token::Ok, Token::OkSoft, TEXT_CONTRAST},
    {Token::Warn, Token::WarnSoft, TEXT_CONTRAST},
    {Token::Text2, Token::WarnSoft, TEXT_CONTRAST},
    {Token::Danger, Token::DangerSoft, TEXT_CONTRAST},
    {Token::Danger, Token::Surface, TEXT_CONTRAST},
    {Token::Text2, Token::DangerSoft, TEXT_CONTRAST},
    {Token::OnHero, Token::HeroA, TEXT_CONTRAST},
    {Token::OnHero, Token::HeroB, TEXT_CONTRAST},
    {Token::OnHero2, Token::HeroA, TEXT_CONTRAST},
    {Token::OnHero2, Token::HeroB, TEXT_CONTRAST},
    {Token::OnPaper, Token::Paper, TEXT_CONTRAST},
    {Token::Focus, Token::Surface, OUTLINE_CONTRAST},
    {Token::Focus, Token::Bg, OUTLINE_CONTRAST},
    {Token::Focus, Token::AccentSoft, OUTLINE_CONTRAST},
    {Token::Control, Token::Surface, OUTLINE_CONTRAST},
    {Token::Control, Token::Bg, OUTLINE_CONTRAST},
    {Token::Ok, Token::Surface, OUTLINE_CONTRAST},
    {Token::Warn, Token::Surface, OUTLINE_CONTRAST},
};

const char *const SHADES[] = {"light", "dark"};
const char *const KINDS[] = {"",     "primary", "ghost",   "danger", "hero", "heroOutline",
                             "chip", "choice",  "iconbtn", "nav",    "seg"};
const char *const ICONS[] = {
    "bell",   "calendar",  "callme",  "check",   "chevron", "chevronL", "clock",    "close",
    "codes",  "copy",      "data",    "down",    "edit",    "eye",      "flask",    "globe",
    "home",   "info",      "list",    "lock",    "menu",    "messages", "modem",    "moon",
    "more",   "number",    "plus",    "refresh", "search",  "send",     "services", "settings",
    "shield", "shieldOff", "sim",     "star",    "stop",    "tag",      "topup",    "trash",
    "up",     "voicemail", "warning", "window"};

QString opened(const char *path)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QWidget *makeControl(const QString &type)
{
    if (type == QLatin1String("QPushButton"))
        return new QPushButton(QLatin1String("Send"));
    if (type == QLatin1String("QLineEdit"))
        return new QLineEdit(QLatin1String("*100#"));
    if (type == QLatin1String("QTextEdit"))
        return new QTextEdit(QLatin1String("Your balance is 12.50 EUR."));
    return type == QLatin1String("QTreeWidget") ? new QTreeWidget : nullptr;
}

/// Returns the content rectangle of the widget, which must not change when the widget gets the
/// focus.
QRect contentRectOf(const QWidget *widget)
{
    const QAbstractScrollArea *area = qobject_cast<const QAbstractScrollArea *>(widget);
    return area ? area->viewport()->geometry() : widget->contentsRect();
}

bool isSimilar(const QColor &a, const QColor &b)
{
    const int rounding = 2; // the rounding error of semi-transparent colours
    return qAbs(a.red() - b.red()) <= rounding && qAbs(a.green() - b.green()) <= rounding &&
           qAbs(a.blue() - b.blue()) <= rounding;
}

/// Returns true if the image contains opaque pixels and all of them have this colour.
bool isPaintedIn(const QColor &color, const QImage &image)
{
    const int almostOpaque = 160;
    int painted = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor found = image.pixelColor(x, y);
            if (found.alpha() < almostOpaque)
                continue;
            if (!isSimilar(found, color))
                return false;
            ++painted;
        }
    return painted > image.width() / 2;
}

QImage painted(const QIcon &icon, int side, double ratio)
{
    QImage image(QSize(side, side) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, 0, 0, side, side);
    return image;
}

} // namespace

class LookTest : public UssdTest
{
    Q_OBJECT

protected:
    void tearDown() override
    {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        Look::instance().setTheme(ThemeChoice::Light);
    }

private:
    static void checkFocus(QWidget *window, QWidget *control)
    {
        QVBoxLayout *column = new QVBoxLayout(window);
        QPushButton *other = new QPushButton(window);
        column->addWidget(other);
        column->addWidget(control);
        window->show();
        QApplication::setActiveWindow(window);
        other->setFocus();
        QVERIFY(!control->hasFocus());
        const QSize size = control->sizeHint();
        const QSize least = control->minimumSizeHint();
        const QRect content = contentRectOf(control);
        control->setFocus();
        QVERIFY(control->hasFocus());
        drainEvents();
        QCOMPARE(control->sizeHint(), size);
        QCOMPARE(control->minimumSizeHint(), least);
        if (!qobject_cast<QLineEdit *>(control))
            QCOMPARE(contentRectOf(control), content);
    }

private slots:
    // Tests that selecting a theme does not affect the application before the look is started. This
    // test must run first, because the style cannot be removed once it has been applied.
    void leavesTheApplicationAloneUntilItIsStarted()
    {
        const QPalette before = QApplication::palette();
        Look::instance().setTheme(ThemeChoice::Dark);
        QCOMPARE(QApplication::palette(), before);
        QVERIFY(qApp->styleSheet().isEmpty());
        QCOMPARE(Look::instance().color(Token::Text), tokenColor(Token::Text, Shade::Dark));
    }

    void contrastIsThatOfWcag()
    {
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
        QCOMPARE(qRound(contrast(QColor(0x76, 0x76, 0x76), Qt::white) * 100), 454);
    }

    void everyPairHasEnoughContrast_data()
    {
        QTest::addColumn<Token>("first");
        QTest::addColumn<Token>("second");
        QTest::addColumn<double>("atLeast");
        QTest::addColumn<Shade>("shade");
        for (const Pair &pair : PAIRS)
            for (const Shade shade : {Shade::Light, Shade::Dark})
                QTest::addRow("%s on %s, %s", qPrintable(tokenName(pair.first)),
                              qPrintable(tokenName(pair.second)), SHADES[int(shade)])
                    << pair.first << pair.second << pair.atLeast << shade;
    }

    void everyPairHasEnoughContrast()
    {
        QFETCH(Token, first);
        QFETCH(Token, second);
        QFETCH(double, atLeast);
        QFETCH(Shade, shade);
        const double found = contrast(tokenColor(first, shade), tokenColor(second, shade));
        QVERIFY2(found >= atLeast, qPrintable(QString::number(found)));
    }

    void styleSheetIsFilledIn_data()
    {
        QTest::addColumn<Shade>("shade");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("light") << Shade::Light << Qt::LeftToRight;
        QTest::newRow("dark") << Shade::Dark << Qt::LeftToRight;
        QTest::newRow("right to left") << Shade::Light << Qt::RightToLeft;
    }

    void styleSheetIsFilledIn()
    {
        QFETCH(Shade, shade);
        QFETCH(Qt::LayoutDirection, direction);
        const QString sheet = styleSheet(shade, direction, 1.5);
        QVERIFY(sheet.size() > 1000);
        QVERIFY(!sheet.contains(QLatin1Char('@')));
        QVERIFY(!sheet.contains(QLatin1String("/*")));
        QVERIFY(!sheet.contains(QRegularExpression(QLatin1String("\\s\\s|\\n|[{};,] | [{};,]"))));
        QVERIFY(!sheet.contains(QRegularExpression(QLatin1String("#[0-9-]+px"))));
        const char *end =
            direction == Qt::LeftToRight ? "padding-right: 10px" : "padding-left: 10px";
        QVERIFY(sheet.contains(QLatin1String(end)));
        QVERIFY(sheet.contains(QLatin1String("font-size: 36px"))); // the font size of h1
    }

    void everyIconHasTheColourOfItsToken_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : ICONS)
            QTest::newRow(name) << QByteArray(name);
    }

    void everyIconHasTheColourOfItsToken()
    {
        QFETCH(QByteArray, name);
        const QIcon accent = icon(name.constData(), Token::Accent);
        for (const ThemeChoice theme : {ThemeChoice::Light, ThemeChoice::Dark}) {
            Look::instance().setTheme(theme);
            const QColor wanted = Look::instance().color(Token::Accent);
            for (const double ratio : {1.0, 2.0})
                QVERIFY(isPaintedIn(wanted, painted(accent, 24, ratio)));
        }
    }

    void iconIsSharpAtTwicePixelRatio()
    {
        const QIcon home = icon("home");
        QCOMPARE(painted(home, 24, 2.0).size(), QSize(48, 48));
        const QImage doubled = painted(home, 24, 1.0).scaled(48, 48);
        QImage sharp = painted(home, 24, 2.0);
        sharp.setDevicePixelRatio(1);
        QCOMPARE(sharp, painted(home, 48, 1.0));
        QVERIFY(sharp != doubled);
    }

    void onlyIconsWithADirectionAreMirrored()
    {
        for (const char *name : ICONS) {
            const QImage before = painted(icon(name), 24, 1.0);
            QGuiApplication::setLayoutDirection(Qt::RightToLeft);
            const QImage after = painted(icon(name), 24, 1.0);
            QGuiApplication::setLayoutDirection(Qt::LeftToRight);
            const bool hasDirection =
                QList<QByteArray>{"chevron", "chevronL", "send", "list"}.contains(name);
            QVERIFY2(after == (hasDirection ? before.mirrored(true, false) : before), name);
        }
    }

    void disabledAndCheckedIconsHaveTheirOwnColours()
    {
        const QIcon home = icon("home", Token::Text2, Token::AccentText);
        const auto image = [&](QIcon::Mode mode, QIcon::State state) {
            return home.pixmap(QSize(48, 48), mode, state).toImage();
        };
        const Look &look = Look::instance();
        QVERIFY(isPaintedIn(look.color(Token::Text2), image(QIcon::Normal, QIcon::Off)));
        QVERIFY(isPaintedIn(look.color(Token::AccentText), image(QIcon::Normal, QIcon::On)));
        QVERIFY(isPaintedIn(look.color(Token::DisabledText), image(QIcon::Disabled, QIcon::Off)));
    }

    void followsTheThemeAtOnce()
    {
        Look &look = Look::instance();
        look.start();
        look.setTheme(ThemeChoice::Light);
        QLabel label(QLatin1String("text"));
        label.ensurePolished();
        QSignalSpy changes(&look, &Look::changed);
        look.setTheme(ThemeChoice::Dark);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(label.palette().color(QPalette::WindowText), look.color(Token::Text));
        for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Text,
                                               QPalette::Link, QPalette::Highlight})
            QVERIFY(QApplication::palette().color(role) != lookPalette(Shade::Light).color(role));
        QCOMPARE(QApplication::palette().color(QPalette::Link), look.color(Token::AccentText));
        QCOMPARE(look.shade(), Shade::Dark);
    }

    void systemThemeIsThatOfTheSystem()
    {
        Look &look = Look::instance();
        look.start();
        look.setTheme(ThemeChoice::System);
        look.setSystemShade(Shade::Dark);
        QCOMPARE(look.shade(), Shade::Dark);
        look.setSystemShade(Shade::Light);
        QCOMPARE(look.shade(), Shade::Light);
    }

    void followsTheDirectionAndTheFont()
    {
        Look &look = Look::instance();
        look.start();
        const QString before = qApp->styleSheet();
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(qApp->styleSheet() != before);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(qApp->styleSheet(), before);
        const QFont font = QApplication::font();
        QFont large = font;
        large.setPixelSize(28);
        QApplication::setFont(large);
        QCOMPARE(look.em(), 28);
        QCOMPARE(look.px(36), 72);
        QVERIFY(qApp->styleSheet() != before);
        QApplication::setFont(font);
        QCOMPARE(qApp->styleSheet(), before);
    }

    void fontIsLargeEnough()
    {
        Look::instance().start();
        QVERIFY(QApplication::font().pointSizeF() >= 10.5);
    }

    void focusDoesNotMoveAnything_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("kind"); // the kind, for buttons of the dashboard
        QTest::addColumn<QString>("name"); // the object name, for controls of the plug-in
        for (const char *kind : KINDS)
            QTest::addRow("kind '%s'", kind)
                << QString(latin1("QPushButton")) << latin1(kind) << QString();
        for (const char *type : {"QLineEdit", "QTextEdit", "QTreeWidget"})
            QTest::newRow(type) << latin1(type) << QString() << QString();
        const QRegularExpression control(
            latin1("(QPushButton|QLineEdit|QTextEdit)#(USSDUIPlugin_\\w+)"));
        QSet<QString> names;
        const QString sheet = opened(":/look/dashboard.qss");
        for (auto hits = control.globalMatch(sheet); hits.hasNext();) {
            const QRegularExpressionMatch hit = hits.next();
            if (names.contains(hit.captured(2)))
                continue;
            names << hit.captured(2);
            QTest::newRow(qPrintable(hit.captured(2)))
                << hit.captured(1) << QString() << hit.captured(2);
        }
        QVERIFY(names.size() >= 15);
    }

    void focusDoesNotMoveAnything()
    {
        QFETCH(QString, type);
        QFETCH(QString, kind);
        QFETCH(QString, name);
        Look::instance().start();
        const QFont font = QApplication::font();
        for (const int em : {14, 15, 16, 17, 19, 28}) {
            QFont other = font;
            other.setPixelSize(em);
            QApplication::setFont(other);
            for (QWidget *window : {new QWidget, static_cast<QWidget *>(new QDialog)}) {
                const QScopedPointer<QWidget> owner(window);
                QWidget *control = makeControl(type);
                control->setObjectName(name);
                if (type == QLatin1String("QPushButton") && name.isEmpty())
                    setButtonKind(static_cast<QPushButton *>(control), kind.toLatin1().constData());
                checkFocus(window, control);
                if (QTest::currentTestFailed())
                    break;
            }
        }
        QApplication::setFont(font);
    }

    void focusIsVisible_data()
    {
        QTest::addColumn<QByteArray>("kind");
        for (const char *kind : KINDS)
            QTest::addRow("kind '%s'", kind) << QByteArray(kind);
    }

    void focusIsVisible()
    {
        QFETCH(QByteArray, kind);
        Look::instance().start();
        QWidget window;
        QVBoxLayout *column = new QVBoxLayout(&window);
        QPushButton *button = makeButton(kind.constData());
        QPushButton *other = makeButton("");
        button->setText(latin1("Send"));
        column->addWidget(button);
        column->addWidget(other);
        window.show();
        QApplication::setActiveWindow(&window);
        other->setFocus();
        const QImage without = button->grab().toImage();
        button->setFocus();
        QVERIFY(button->grab().toImage() != without);
    }

    void programHasItsIcon()
    {
        const QList<QSize> sizes{{16, 16}, {32, 32}, {48, 48}, {128, 128}};
        QCOMPARE(applicationIcon().availableSizes(), sizes);
        QVERIFY(!applicationIcon().pixmap(32).isNull());
    }

    void linksFollowTheTheme()
    {
        Look &look = Look::instance();
        look.start();
        look.setTheme(ThemeChoice::Light);
        QLabel link(latin1("<a href=\"https://example.com\">Top up online</a>"));
        link.show();
        for (const ThemeChoice theme : {ThemeChoice::Dark, ThemeChoice::Light}) {
            look.setTheme(theme);
            QVERIFY(isPaintedIn(look.color(Token::AccentText), link.grab().toImage()));
        }
    }

    void messageBoxHasOurIcon()
    {
        Look::instance().start();
        QMessageBox box(QMessageBox::Warning, QString(), latin1("text"));
        box.show();
        QVERIFY(isPaintedIn(Look::instance().color(Token::Warn), box.iconPixmap().toImage()));
        QCOMPARE(box.icon(), QMessageBox::NoIcon); // Qt reports NoIcon if a custom icon is set
    }
};

USSD_TEST_MAIN(LookTest)
#include "look_test.moc"

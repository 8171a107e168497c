#include "Look.h"

#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QPointer>
#include <QStyle>
#include <QToolTip>

#include "MessageBoxIcons.h"
#include "Resources.h"
#include "StyleSheet.h"

namespace Dashboard
{

namespace
{

const int EM_AT_100_PERCENT = 14;        // in pixels
const double SMALLEST_POINT_SIZE = 10.5; // 14 pixels at 96 dpi
const char STYLE[] = "fusion";           // the only Qt style that supports every palette

Shade shadeOf(const QPalette &palette)
{
    const QColor &window = palette.color(QPalette::Window);
    const QColor &text = palette.color(QPalette::WindowText);
    return window.lightness() < text.lightness() ? Shade::Dark : Shade::Light;
}

/// Enlarges the application font if it is too small, so that the smallest text in the program has a
/// size of at least 12 pixels.
void raiseFont()
{
    QFont font = QApplication::font();
    if (font.pointSizeF() >= SMALLEST_POINT_SIZE || font.pixelSize() >= EM_AT_100_PERCENT)
        return;
    font.setPointSizeF(SMALLEST_POINT_SIZE);
    QApplication::setFont(font);
}

void useStyle()
{
    if (QApplication::style()->objectName() != QLatin1String(STYLE))
        QApplication::setStyle(QLatin1String(STYLE));
}

// Updates the colour of links in all labels by setting their texts again. A label keeps the colour
// that links had when its text was set.
void colorLinksAgain()
{
    for (QWidget *widget : QApplication::allWidgets()) {
        QLabel *label = qobject_cast<QLabel *>(widget);
        if (!label || label->textFormat() == Qt::PlainText)
            continue;
        const QString text = label->text();
        if (!text.contains(QLatin1String("<a ")))
            continue;
        label->clear();
        label->setText(text);
    }
}

} // namespace

Look &Look::instance()
{
    static QPointer<Look> look;
    Q_ASSERT(qApp);
    if (!look)
        look = new Look(qApp);
    return *look;
}

Look::Look(QObject *parent) : QObject(parent)
{
    openResources();
    connect(qApp, &QGuiApplication::layoutDirectionChanged, this, &Look::update);
    // Uses the string-based syntax, because the signal is deprecated in Qt 6. In Qt 5, the event
    // that replaces this signal does not reach this object.
    connect(qApp, SIGNAL(fontChanged(QFont)), SLOT(update()));
}

void Look::start()
{
    if (m_isStarted)
        return;
    m_systemShade = shadeOf(QApplication::palette());
    useStyle();
    raiseFont();
    m_isStarted = true;
    new MessageBoxIcons(this);
    update();
}

void Look::setTheme(ThemeChoice theme)
{
    m_theme = theme;
    update();
}

void Look::setSystemShade(Shade shade)
{
    m_systemShade = shade;
    update();
}

Shade Look::shade() const
{
    if (m_theme == ThemeChoice::System)
        return m_systemShade;
    return m_theme == ThemeChoice::Dark ? Shade::Dark : Shade::Light;
}

int Look::px(int at100Percent) const
{
    return qRound(at100Percent * scale());
}

int Look::em() const
{
    // Caches the pixel size, because every call of px() needs it, and resolving a font takes much
    // longer than comparing two fonts.
    const QFont font = QApplication::font();
    if (m_em == 0 || font != m_emFont) {
        m_emFont = font;
        m_em = QFontInfo(font).pixelSize();
    }
    return m_em;
}

double Look::scale() const
{
    return double(em()) / EM_AT_100_PERCENT;
}

void Look::setReducesMotion(bool reducesMotion)
{
    m_reducesMotion = reducesMotion;
}

bool Look::reducesMotion() const
{
    return m_reducesMotion ||
           QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

void Look::update()
{
    if (m_isStarted)
        dress();
    emit changed();
}

// Does nothing if the style sheet is unchanged, because setting it makes Qt compute the style of
// every widget again.
void Look::dress()
{
    const QString sheet = styleSheet(shade(), QGuiApplication::layoutDirection(), scale());
    if (sheet == m_sheet)
        return;
    m_sheet = sheet;
    QApplication::setPalette(lookPalette(shade()));
    QToolTip::setPalette(toolTipPalette(shade()));
    qApp->setStyleSheet(sheet);
    colorLinksAgain();
}

QFont sized(QFont font, int at100Percent, QFont::Weight weight)
{
    font.setPixelSize(px(at100Percent));
    font.setWeight(weight);
    return font;
}

} // namespace Dashboard

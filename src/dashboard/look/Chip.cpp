#include <QHBoxLayout>

#include "Controls.h"
#include "Look.h"

namespace Dashboard
{

namespace
{

const int HEIGHT = 24; // in pixels at 100 % text size

const char *nameOf(Tone tone)
{
    switch (tone) {
    case Tone::Ok:
        return "ok";
    case Tone::Warn:
        return "warn";
    case Tone::Danger:
        return "danger";
    case Tone::Accent:
        return "accent";
    case Tone::Neutral:
        break;
    }
    return "neutral";
}

} // namespace

Chip::Chip(QWidget *parent) : QFrame(parent), m_label(makeLabel("chip_neutral", this))
{
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    QHBoxLayout *row = new QHBoxLayout(this);
    row->addWidget(m_label);
    setMargins(row, 8, 0, 8, 0);
    setStyleProperty(this, "chip", QLatin1String(nameOf(m_tone)));
    connect(&Look::instance(), &Look::changed, this, &Chip::resizeToFont);
    resizeToFont();
}

void Chip::setText(const QString &text)
{
    m_label->setText(text);
    setAccessibleName(text);
}

void Chip::setTone(Tone tone)
{
    m_tone = tone;
    setStyleProperty(this, "chip", QLatin1String(nameOf(tone)));
    setLabelType(m_label, QByteArray("chip_").append(nameOf(tone)).constData());
}

void Chip::resizeToFont()
{
    setFixedHeight(px(HEIGHT));
}

} // namespace Dashboard

#include "DeviceHeader.h"

#include <QHBoxLayout>
#include <QLabel>

#include "base/DashboardText.h"
#include "QtCompat.h"
#include "SignalBars.h"

namespace Dashboard
{

namespace
{

const int OPERATOR_MAX_WIDTH = 320; // in pixels
const int WIDE_GAP = 18;
const int OPERATOR_FONT_STEP = 3; // points by which the font is larger than the application font

QLabel *makeLabel(const char *name, QWidget *parent)
{
    QLabel *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

void emphasise(QLabel *label)
{
    QFont font = label->font();
    font.setBold(true);
    font.setPointSize(font.pointSize() + OPERATOR_FONT_STEP);
    label->setFont(font);
}

/// Shows the text, which is elided if necessary. Since the text comes from the network, it must
/// affect neither the width of the header nor the format of the tool tip.
void setElided(QLabel *label, const QString &text)
{
    const QFontMetrics metrics(label->font());
    const bool fits = QtCompat::textWidth(metrics, text) <= OPERATOR_MAX_WIDTH;
    label->setText(metrics.elidedText(text, Qt::ElideRight, OPERATOR_MAX_WIDTH));
    label->setToolTip(fits ? QString()
                           : QLatin1String("<qt>") + QtCompat::escapeHtml(text) +
                                 QLatin1String("</qt>"));
}

} // namespace

DeviceHeader::DeviceHeader(QWidget *parent)
    : QFrame(parent), m_operator(makeLabel("Dashboard_Operator", this)),
      m_paidType(makeLabel("Dashboard_PaidType", this)), m_bars(new SignalBars(this)),
      m_signal(makeLabel("Dashboard_Signal", this)), m_sim(makeLabel("Dashboard_Sim", this))
{
    setFrameShape(QFrame::StyledPanel);
    emphasise(m_operator);
    QHBoxLayout *row = new QHBoxLayout(this);
    row->addWidget(m_operator);
    row->addWidget(m_paidType);
    row->addSpacing(WIDE_GAP);
    row->addWidget(m_bars);
    row->addWidget(m_signal);
    row->addStretch();
    row->addWidget(m_sim);
}

void DeviceHeader::showStatus(const DeviceStatus &status)
{
    setElided(m_operator, status.operatorText());
    m_operator->setAccessibleName(dashboardText("NAME_OPERATOR"));
    m_bars->setPercent(status.signalPercent);
    m_bars->setAccessibleName(dashboardText("NAME_SIGNAL"));
    m_signal->setText(status.signalText());
    m_signal->setAccessibleName(dashboardText("NAME_SIGNAL"));
    m_sim->setText(status.simText());
    m_sim->setAccessibleName(dashboardText("NAME_SIM"));
}

void DeviceHeader::showPaidType(const QString &text)
{
    m_paidType->setText(text);
    m_paidType->setVisible(!text.isEmpty());
    m_paidType->setAccessibleName(dashboardText("NAME_PAID_TYPE"));
}

} // namespace Dashboard

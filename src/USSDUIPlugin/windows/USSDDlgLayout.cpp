/* The part of USSDDlg that places its components in a grid. */
#include "USSDDlg.h"

#include <new>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>

#include "AccountReplyView.h"
#include "base/PluginLog.h"

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDDlg.cpp");

namespace
{

const int LABEL_COLUMN = 0;
const int FIELD_COLUMN = 1;
const int BUTTON_COLUMN = 2;
const int COLUMNS = 3;

const int HORIZONTAL_SPACING = 6;
const int LABEL_WIDTH = 80;
const int FIELD_WIDTH = 230;
const int ROW_HEIGHT = 20;
const int MARGIN = 16;              // pixels around the grid
const int GAP = 4;                  // pixels between related widgets
const int ABOVE_CLOSE = 12;         // pixels between the components and the close button
const int ROWS_OF[] = {2, 3, 1, 1}; // number of rows of each component

const _COMPONENT COMPONENTS[] = {COMPONENT_BALANCE, COMPONENT_CHARGE, COMPONENT_ONLINE_CHARGE,
                                 COMPONENT_MSISDN};

} // namespace

/// Creates a new, empty grid in place of the old grid. The widgets are kept.
void USSDDlg::createGrid()
{
    delete m_pGrid;
    m_pGrid = new (std::nothrow) QGridLayout(this);
}

void USSDDlg::layout()
{
    int row = 0;
    findPosAndAddElements(row);
}

QSize USSDDlg::GetSize()
{
    if (!m_pGrid)
        return QSize(-1, -1);
    // A style sheet may change the font and the padding of a widget, and therefore its size.
    const QList<QWidget *> widgets = findChildren<QWidget *>();
    for (int i = 0; i < widgets.count(); ++i)
        widgets.at(i)->ensurePolished();
    m_pGrid->activate(); // required because nested boxes otherwise use outdated sizes
    return m_pGrid->sizeHint();
}

void USSDDlg::findPosAndAddElements(int &row)
{
    USSD_LOG_SCOPE();
    if (!m_pGrid || !m_pLogic) {
        USSD_LOG_EXIT(" Fail Exit: Grid/Logic is NULL");
        return;
    }
    setUpGrid();
    hideComponents();
    // The map sorts the components by position. If several components have the same position, only
    // the last of them in COMPONENTS is shown.
    QMap<int, _COMPONENT> places;
    for (_COMPONENT component : COMPONENTS) {
        if (isShown(component))
            places.insert(m_pLogic->GetComponentAttrInt(m_paidType, component, ATTR_POS),
                          component);
    }
    setRowHeights(places.values());
    bool isFirst = true;
    for (auto it = places.constBegin(); it != places.constEnd(); ++it) {
        // The format of this line must not change, because log parsers depend on it.
        USSD_IF_LOGGING(qDebug("position = %d component=%d", it.key(), it.value()));
        addComponentElements(it.value(), row, isFirst);
    }
    addCloseButton(row);
    initTabOrder();
}

void USSDDlg::setUpGrid()
{
    m_pGrid->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    m_pGrid->setHorizontalSpacing(HORIZONTAL_SPACING);
    m_pGrid->setVerticalSpacing(0);
    m_pGrid->setColumnMinimumWidth(LABEL_COLUMN, LABEL_WIDTH);
    m_pGrid->setColumnMinimumWidth(FIELD_COLUMN, FIELD_WIDTH);
    m_pGrid->setColumnStretch(FIELD_COLUMN, 1);
}

void USSDDlg::setRowHeights(const QList<_COMPONENT> &components)
{
    int rows = 0;
    m_listFreeLines.clear();
    for (int i = 0; i < components.count(); ++i) {
        findRowCount(components.at(i), rows);
        if (QFrame *line = lineOf(components.at(i)))
            m_listFreeLines << line;
    }
    for (int row = 0; row < rows; ++row)
        m_pGrid->setRowMinimumHeight(row, ROW_HEIGHT);
}

/// Adds the number of rows of the component to `rows`. If `rows` is not 0, also adds a row for the
/// separator above the component.
void USSDDlg::findRowCount(int component, int &rows)
{
    if (rows > 0)
        ++rows;
    rows += ROWS_OF[component];
}

void USSDDlg::addComponentElements(_COMPONENT component, int &row, bool &isFirst)
{
    if (!isFirst)
        addSeparator(row);
    isFirst = false;
    switch (component) {
    case COMPONENT_BALANCE:
        return addBalanceElements(row);
    case COMPONENT_CHARGE:
        return addChargeElements(row);
    case COMPONENT_ONLINE_CHARGE:
        return addOnlineChargeElements(row);
    case COMPONENT_MSISDN:
        return addMSISDNElements(row);
    default:
        break;
    }
}

void USSDDlg::addBalanceElements(int &row)
{
    USSD_LOG_SCOPE();
    if (!m_pGrid) {
        USSD_LOG_EXIT(" Fail Exit: Grid is NULL");
        return;
    }
    place(m_pBalanceLabel, row, LABEL_COLUMN);
    place(m_pBalanceStatusTextEdit, row, FIELD_COLUMN);
    place(m_pBalanceUpdateButton, row, BUTTON_COLUMN);
    placeInBox(m_pBalanceInfoLabel, GAP, row + 1, 1, COLUMNS - FIELD_COLUMN);
    m_listTabOrder << m_pBalanceStatusTextEdit << m_pBalanceUpdateButton;
    row += ROWS_OF[COMPONENT_BALANCE];
}

void USSDDlg::addChargeElements(int &row)
{
    USSD_LOG_SCOPE();
    if (!m_pGrid || !m_pLogic) {
        USSD_LOG_EXIT(" Fail Exit: Logic/Grid is NULL");
        return;
    }
    place(m_pChargeLabel, row, LABEL_COLUMN);
    place(m_pChargeEdit, row, FIELD_COLUMN);
    place(m_pChargeActivateButton, row, BUTTON_COLUMN);
    placeInBox(m_pActivateStatusTextEdit, GAP, row + 1, ROWS_OF[COMPONENT_CHARGE] - 1, 1);
    m_listTabOrder << m_pChargeEdit << m_pChargeActivateButton << m_pActivateStatusTextEdit;
    row += ROWS_OF[COMPONENT_CHARGE];
}

void USSDDlg::addOnlineChargeElements(int &row)
{
    USSD_LOG_SCOPE();
    if (!m_pGrid) {
        USSD_LOG_EXIT(" Fail Exit: Grid is NULL");
        return;
    }
    place(m_pOnlineChargeLabel, row, LABEL_COLUMN);
    placeInBox(m_pOnlineURL, 0, row, 1, COLUMNS - FIELD_COLUMN);
    m_listTabOrder << m_pOnlineURL;
    row += ROWS_OF[COMPONENT_ONLINE_CHARGE];
}

void USSDDlg::addMSISDNElements(int &row)
{
    USSD_LOG_SCOPE();
    if (!m_pGrid) {
        USSD_LOG_EXIT(" Fail Exit: Grid is NULL");
        return;
    }
    place(m_pMSISDNLabel, row, LABEL_COLUMN);
    place(m_pMSISDNStatusTextEdit, row, FIELD_COLUMN);
    place(m_pMSISDNUpdateButton, row, BUTTON_COLUMN);
    m_listTabOrder << m_pMSISDNStatusTextEdit << m_pMSISDNUpdateButton;
    row += ROWS_OF[COMPONENT_MSISDN];
}

/// Adds a separator between two components. The own-number component has no separator of its own,
/// so the separator of the adjacent component is used.
void USSDDlg::addSeparator(int &row)
{
    if (!m_listFreeLines.isEmpty())
        place(m_listFreeLines.takeFirst(), row, LABEL_COLUMN, COLUMNS);
    ++row;
}

void USSDDlg::addCloseButton(int row)
{
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->setObjectName(QLatin1String("USSDUIPlugin_CloseBtn_Layout"));
    buttons->setContentsMargins(0, ABOVE_CLOSE, 0, 0);
    buttons->addStretch(1);
    buttons->addWidget(m_pCloseButton);
    m_pGrid->addLayout(buttons, row, LABEL_COLUMN, 1, COLUMNS, Qt::AlignBottom);
    m_pGrid->setRowStretch(row, 1);
    // An embedded window has no frame that could be closed.
    m_pCloseButton->setVisible(m_windowModel == WINDOW_MODEL_MODAL);
    m_listTabOrder << m_pCloseButton;
}

void USSDDlg::place(QWidget *widget, int row, int column, int columns)
{
    m_pGrid->addWidget(widget, row, column, 1, columns);
    widget->show();
}

/// Places the widget below a gap in a layout box that starts at the field column. The widget is
/// aligned to the leading edge of the window, even if its own layout direction differs from that of
/// the window.
void USSDDlg::placeInBox(QWidget *widget, int gap, int row, int rows, int columns)
{
    QHBoxLayout *box = new QHBoxLayout;
    box->setContentsMargins(0, gap, 0, 0);
    box->addWidget(widget, widget == m_pActivateStatusTextEdit ? 1 : 0);
    box->addStretch();
    m_pGrid->addLayout(box, row, FIELD_COLUMN, rows, columns);
    widget->show();
}

/// Hides all widgets. The layout then shows the widgets that it places.
void USSDDlg::hideComponents()
{
    QWidget *const widgets[] = {m_pBalanceLabel,
                                m_pBalanceStatusTextEdit,
                                m_pBalanceUpdateButton,
                                m_pBalanceInfoLabel,
                                m_pBalanceLine,
                                m_pChargeLabel,
                                m_pChargeEdit,
                                m_pChargeActivateButton,
                                m_pActivateStatusTextEdit,
                                m_pChargeLine,
                                m_pOnlineChargeLabel,
                                m_pOnlineURL,
                                m_pOnlineChargeLine,
                                m_pMSISDNLabel,
                                m_pMSISDNStatusTextEdit,
                                m_pMSISDNUpdateButton,
                                m_pCloseButton};
    for (QWidget *widget : widgets)
        widget->hide();
    m_listTabOrder.clear();
}

/// Makes the tab order follow the reading order: row by row, from top to bottom.
void USSDDlg::initTabOrder()
{
    for (int i = 1; i < m_listTabOrder.count(); ++i)
        QWidget::setTabOrder(m_listTabOrder.at(i - 1), m_listTabOrder.at(i));
}

/// Returns the separator of the component, or null for the own-number component.
QFrame *USSDDlg::lineOf(_COMPONENT component) const
{
    switch (component) {
    case COMPONENT_BALANCE:
        return m_pBalanceLine;
    case COMPONENT_CHARGE:
        return m_pChargeLine;
    case COMPONENT_ONLINE_CHARGE:
        return m_pOnlineChargeLine;
    default:
        return nullptr;
    }
}

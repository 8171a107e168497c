/* The profile editor. ProfileFiles.cpp contains the functions that access the profile files. */
#include "USSDEditCmd.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/PluginLog.h"
#include "base/PluginMessage.h"
#include "base/PluginText.h"
#include "CommonUtils.h"
#include "ProfileRows.h"
#include "ProfileSaveCheck.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDEditCmd.cpp");

namespace
{

const int COLUMN_WIDTH = 177;
const int ROW_HEIGHT = 19;
const int TABLE_HEIGHT = 310;
const int PLAIN_FRAME = 1;

QTableWidgetItem *createItem(const QString &text, const QColor &background)
{
    QTableWidgetItem *item = new QTableWidgetItem(text);
    item->setData(Qt::BackgroundRole, QBrush(background));
    return item;
}

} // namespace

USSDEditCmd::USSDEditCmd()
    : m_pEditedItem(nullptr), m_iEditedColumn(-1), m_iEditedRow(-1), m_bSaved(false),
      m_systemFileReading(NoFile), m_userFileReading(NoFile)
{
    load();
}

USSDEditCmd::~USSDEditCmd()
{
    delete m_pFrame;
}

QString USSDEditCmd::tr(const QString &key)
{
    return pluginText(key);
}

// ---- building --------------------------------------------------------------------------------

void USSDEditCmd::InitDialog(QWidget *parent)
{
    USSD_LOG_SCOPE();
    m_pContainer = new QWidget;
    m_pFrame = new ExtendDialog(parent, Qt::WindowCloseButtonHint, PLAIN_FRAME);
    m_pFrame->AddMainWidget(m_pContainer);
    if (!createWidgets()) {
        USSD_LOG_EXIT(" Exit: either of the objects creation failed");
        return;
    }
    initWidgets();
    m_pLogic->GetCmdEditSetting(m_cmdEditSetting);
    initTable();
    layoutWidgets();
    connectWidgets();
    if (!CommonUtils::IsMiniMode())
        m_pFrame->setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint |
                                 Qt::WindowCloseButtonHint);
    m_bSaved = false;
    CommonUtils::MoveCentre(m_pFrame);
    SetLanguage();
}

bool USSDEditCmd::createWidgets()
{
    m_pLogic = USSDLogic::GetUSSDLogicInstance();
    m_pTable = new ProfileTableWidget(ProfileRows::ROWS, ProfileRows::ColumnCount, m_pContainer);
    m_pInfoLabel = new QLabel(m_pContainer);
    m_pSaveButton = new QPushButton(m_pContainer);
    m_pCancelButton = new QPushButton(m_pContainer);
    return m_pLogic;
}

void USSDEditCmd::initWidgets()
{
    m_pContainer->setObjectName(QLatin1String("USSDUIPlugin_ProfileWidget"));
    m_pTable->setObjectName(QLatin1String("USSDUIPlugin_ProfileTable"));
    m_pInfoLabel->setObjectName(QLatin1String("USSDUIPlugin_ProfileDialog_InfoLabel"));
    m_pSaveButton->setObjectName(QLatin1String("USSDUIPlugin_ProfileDialog_SaveButton"));
    m_pCancelButton->setObjectName(QLatin1String("USSDUIPlugin_ProfileDialog_CancelButton"));
    m_pTable->setFixedHeight(TABLE_HEIGHT);
    m_pContainer->setWindowModality(Qt::WindowModal);
    m_pContainer->setFixedSize(420, 440);
    m_pInfoLabel->setTextFormat(Qt::PlainText);
    m_pInfoLabel->setWordWrap(true);
    m_pInfoLabel->setBuddy(m_pTable);
    m_pTable->setTabKeyNavigation(true);
    // The Return key must only end the editing of a cell and not press one of these buttons.
    m_pSaveButton->setAutoDefault(false);
    m_pCancelButton->setAutoDefault(false);
}

void USSDEditCmd::layoutWidgets()
{
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->addWidget(m_pSaveButton);
    buttons->addWidget(m_pCancelButton);
    buttons->setAlignment(Qt::AlignRight);
    QVBoxLayout *column = new QVBoxLayout(m_pContainer);
    column->setContentsMargins(20, 32, 20, 5);
    column->addWidget(m_pTable);
    column->addWidget(m_pInfoLabel);
    column->addLayout(buttons);
}

void USSDEditCmd::connectWidgets()
{
    connect(m_pSaveButton, SIGNAL(clicked()), this, SLOT(OnClickedSaveButton()));
    connect(m_pCancelButton, SIGNAL(clicked()), this, SLOT(OnClickedCancelButton()));
}

void USSDEditCmd::SetLanguage()
{
    if (!m_pFrame || !m_pTable)
        return;
    m_pInfoLabel->setText(tr(QLatin1String("IDC_STATIC_CMDTIP")));
    m_pSaveButton->setText(tr(QLatin1String("IDC_CMDEDIT_SAVE")));
    m_pCancelButton->setText(tr(QLatin1String("IDS_BUTTON_CANCEL")));
    m_pFrame->setWindowTitle(tr(QLatin1String("IDC_TITLE_EDITCOMMAND")));
    m_pTable->setAccessibleName(m_pFrame->windowTitle());
}

// ---- table -----------------------------------------------------------------------------------

void USSDEditCmd::clearTable()
{
    if (!m_pTable) {
        USSD_LOG(" Exit Null Table");
        return;
    }
    USSD_LOG(" row = %d column = %d", m_pTable->rowCount(), m_pTable->columnCount());
    for (int row = 0; row < m_pTable->rowCount(); ++row) {
        for (int column = 0; column < m_pTable->columnCount(); ++column)
            delete m_pTable->takeItem(row, column);
    }
    for (int column = 0; column < m_pTable->columnCount(); ++column)
        delete m_pTable->takeHorizontalHeaderItem(column);
}

void USSDEditCmd::initTable()
{
    USSD_LOG_SCOPE();
    clearTable();
    m_pTable->verticalHeader()->setMinimumSectionSize(ROW_HEIGHT);
    for (int row = 0; row < m_pTable->rowCount(); ++row)
        m_pTable->setRowHeight(row, ROW_HEIGHT);
    m_pTable->setTextElideMode(Qt::ElideRight);
    m_pTable->setWordWrap(false);
    m_pTable->setMouseTracking(true);
    initHeader();
    for (int i = 0; i < m_listUSSDProfiles.count() && i < m_pTable->rowCount(); ++i)
        showProfile(i, m_listUSSDProfiles.at(i));
    m_pTable->setItemDelegate(&m_delegate);
    m_pTable->setSelectionMode(QAbstractItemView::NoSelection);
    connect(&m_delegate, SIGNAL(closeEditor(QWidget *)), this, SLOT(OnEditorClosed(QWidget *)));
    connect(m_pTable, SIGNAL(cellChanged(int, int)), this, SLOT(OnCellChanged(int, int)));
}

void USSDEditCmd::initHeader()
{
    const QColor colour(m_cmdEditSetting.headRed, m_cmdEditSetting.headGreen,
                        m_cmdEditSetting.headBlue);
    m_pTable->setHorizontalHeaderItem(ProfileRows::NameColumn,
                                      createItem(tr(QLatin1String("IDS_COMMAND_NAME")), colour));
    m_pTable->setHorizontalHeaderItem(ProfileRows::CodeColumn,
                                      createItem(tr(QLatin1String("IDS_COMMAND_CODE")), colour));
    m_pTable->verticalHeader()->setVisible(false);
    QHeaderView *header = m_pTable->horizontalHeader();
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter); // Qt mirrors it in Arabic
    header->setTextElideMode(Qt::ElideRight);
    header->setStretchLastSection(false);
    for (int column = 0; column < ProfileRows::ColumnCount; ++column)
        m_pTable->setColumnWidth(column, COLUMN_WIDTH);
}

void USSDEditCmd::showProfile(int row, const USSDProfile &profile)
{
    USSD_LOG(" name=%s value = %s", profile.name.toLocal8Bit().constData(),
             profile.value.toLocal8Bit().constData());
    const CmdEdit &set = m_cmdEditSetting;
    const QColor colour = profile.readonly
                              ? QColor(set.readonlyRed, set.readonlyGreen, set.readonlyBlue)
                              : QColor(set.commonRed, set.commonGreen, set.commonBlue);
    QTableWidgetItem *const items[] = {createItem(profile.name, colour),
                                       createItem(profile.value, colour)};
    for (int column = 0; column < ProfileRows::ColumnCount; ++column) {
        if (profile.readonly)
            items[column]->setFlags(items[column]->flags() & ~Qt::ItemIsEditable);
        m_pTable->setItem(row, column, items[column]);
    }
}

QString USSDEditCmd::cellText(int row, int column) const
{
    const QTableWidgetItem *item = m_pTable->item(row, column);
    return item ? item->text() : QString();
}

void USSDEditCmd::readTableProfiles(QList<USSDProfile> &list, bool &changed)
{
    QList<ProfileRows::Row> rows;
    for (int row = 0; row < m_pTable->rowCount(); ++row) {
        const ProfileRows::Row cells = {cellText(row, ProfileRows::NameColumn),
                                        cellText(row, ProfileRows::CodeColumn)};
        rows.append(cells);
    }
    list = ProfileRows::profiles(rows, m_listUSSDProfiles);
    changed = ProfileRows::differ(list, m_listUSSDProfiles);
}

// ---- editing ---------------------------------------------------------------------------------

void USSDEditCmd::OnCellChanged(int row, int column)
{
    m_pEditedItem = m_pTable ? m_pTable->item(row, column) : nullptr;
    m_iEditedColumn = column;
    m_iEditedRow = row;
}

void USSDEditCmd::forgetEditedCell()
{
    m_pEditedItem = nullptr;
    m_iEditedColumn = -1;
    m_iEditedRow = -1;
}

void USSDEditCmd::OnEditorClosed(QWidget *editor)
{
    USSD_LOG_SCOPE();
    Q_UNUSED(editor);
    if (!m_pTable)
        return;
    if (!m_pEditedItem || m_iEditedRow == -1 || m_iEditedColumn == -1) {
        deselectCurrentCell();
        return;
    }
    m_pEditedItem->setSelected(false);
    if (m_pEditedItem->text().isEmpty()) {
        USSD_LOG_EXIT(" Exit: empty string ");
        return;
    }
    if (isDuplicate(m_iEditedRow, m_iEditedColumn))
        refuseLater(m_pEditedItem);
    else
        deselectCurrentCell();
}

void USSDEditCmd::deselectCurrentCell()
{
    m_pTable->setCurrentCell(m_pTable->currentRow(), m_pTable->currentColumn(),
                             QItemSelectionModel::Clear);
}

/// Returns true if the cell is not empty and another row contains the same text in this column.
bool USSDEditCmd::isDuplicate(int row, int column) const
{
    const QString text = savedText(row, column);
    for (int other = 0; other < m_pTable->rowCount(); ++other) {
        if (other != row && !text.isEmpty() && savedText(other, column) == text)
            return true;
    }
    return false;
}

/// Returns the text of the cell in the form in which it is saved. Codes are trimmed, because a
/// manually edited file may contain blanks around them.
QString USSDEditCmd::savedText(int row, int column) const
{
    const QString text = cellText(row, column);
    return column == ProfileRows::CodeColumn ? text.trimmed() : text;
}

/// Shows the message about a duplicate from the event loop. When the cell's editor is closed, the
/// delegate and the table are still processing the cell. A message box at that point would run a
/// nested event loop, in which the host could delete them.
void USSDEditCmd::refuseLater(QTableWidgetItem *item)
{
    if (m_refusedItems.contains(item))
        return;
    if (m_refusedItems.isEmpty())
        QMetaObject::invokeMethod(this, "OnDuplicatesFound", Qt::QueuedConnection);
    m_refusedItems.append(item);
}

void USSDEditCmd::OnDuplicatesFound()
{
    const QPointer<USSDEditCmd> self(this);
    while (self && !m_refusedItems.isEmpty()) {
        if (m_pContainer && m_pContainer->isVisible())
            refuseDuplicate(m_refusedItems.first());
        else
            m_refusedItems.clear(); // the window has been closed
    }
}

/// Reports the duplicate to the user, clears the cell and opens it for editing again.
void USSDEditCmd::refuseDuplicate(QTableWidgetItem *item)
{
    m_pTable->setCurrentItem(item); // closes the editor that Tab has opened in the next cell
    OnEditorClosed(nullptr);        // that editor may contain a duplicate, too
    const QPointer<USSDEditCmd> self(this);
    sayDuplicate(item->column());
    if (!self || !m_pTable) // the host has deleted the window during show()
        return;
    m_refusedItems.removeFirst();
    item->setText(QString());
    m_pTable->setCurrentItem(item);
    m_pTable->editItem(item);
    forgetEditedCell();
}

void USSDEditCmd::sayDuplicate(int column)
{
    const QString what = tr(
        QLatin1String(column == ProfileRows::CodeColumn ? "IDS_COMMAND_CODE" : "IDS_COMMAND_NAME"));
    PluginMessage::show(
        QMessageBox::Information, messageParent(), tr(QLatin1String("IDS_PROMPT_CAPTION")),
        tr(QLatin1String("IDC_CMDEDIT_EXISTTIP")).replace(QLatin1String("%s"), what),
        QLatin1String("IDS_OK"));
}

QWidget *USSDEditCmd::messageParent() const
{
    return CommonUtils::IsMiniMode() ? m_pContainer.data() : nullptr;
}

// ---- leaving ---------------------------------------------------------------------------------

bool USSDEditCmd::Exec()
{
    USSD_LOG_SCOPE();
    if (m_pFrame)
        m_pFrame->exec();
    return m_bSaved;
}

void USSDEditCmd::OnClickedSaveButton()
{
    USSD_LOG_SCOPE();
    if (m_pTable) {
        m_pTable->setCurrentCell(-1, -1); // commits the text of an open editor
        OnEditorClosed(nullptr);          // the delegate does not report this editor as closed
    }
    if (!m_pTable || !m_refusedItems.isEmpty())
        return; // the cell with the duplicate is about to be opened again
    QList<USSDProfile> newList;
    bool changed = false;
    readTableProfiles(newList, changed);
    if (changed && !confirmSaving()) {
        USSD_LOG(" No is pressed");
        return;
    }
    SavePlan plan = planSaving(newList);
    if (plan.losesChanges)
        return sayRefusals(plan); // the window remains open with the unsaved changes
    m_listUSSDProfiles = newList;
    USSD_LOG(" number of profiles in m_listUSSDProfiles= %d", int(m_listUSSDProfiles.count()));
    saveAsPlanned(plan);
}

/// Determines which files can be saved. This must be known in advance, because saving deletes the
/// old files first.
USSDEditCmd::SavePlan USSDEditCmd::planSaving(const QList<USSDProfile> &newList)
{
    SavePlan plan;
    plan.writesSystemFile = planFile(true, newList, plan);
    plan.writesUserFile = planFile(false, newList, plan);
    return plan;
}

/// Returns true if the file can be saved. Otherwise, adds an error message to `plan` if the file is
/// damaged or if changes would be lost. A file that is not writable is skipped without a message if
/// its profiles have not changed. This is a common case, because the system file often belongs to
/// root.
bool USSDEditCmd::planFile(bool isSystem, const QList<USSDProfile> &newList, SavePlan &plan)
{
    const QList<USSDProfile> profiles = ProfileRows::ofFile(newList, isSystem);
    const bool isWhole = mayBeSavedOver(isSystem);
    const bool isWritten =
        isWhole && ProfileSaveCheck::canBeSaved(profileFilePath(isSystem), profiles,
                                                isSystem ? ProfileSaveCheck::FolderIsNotMade
                                                         : ProfileSaveCheck::FolderIsMade);
    const bool loses =
        !isWritten &&
        ProfileRows::differ(profiles, ProfileRows::ofFile(m_listUSSDProfiles, isSystem));
    if (!isWhole)
        plan.refusals.append(fileText("IDC_CMDEDIT_DAMAGEDTIP", isSystem));
    else if (loses)
        plan.refusals.append(fileText("IDC_CMDEDIT_WRITETIP", isSystem));
    plan.losesChanges = plan.losesChanges || loses;
    return isWritten;
}

void USSDEditCmd::saveAsPlanned(SavePlan &plan)
{
    const QPointer<USSDEditCmd> self(this);
    if (plan.writesSystemFile)
        saveFile(true, plan);
    if (plan.writesUserFile)
        saveFile(false, plan);
    sayRefusals(plan);
    if (!self)
        return;
    closeWindow();
    m_bSaved = true;
}

void USSDEditCmd::saveFile(bool isSystem, SavePlan &plan)
{
    if (saveToXMLFile(isSystem) != SAVE_OK)
        plan.refusals.append(fileText("IDC_CMDEDIT_WRITETIP", isSystem));
}

QString USSDEditCmd::fileText(const char *key, bool isSystem)
{
    const QString path = profileFilePath(isSystem);
    return tr(QLatin1String(key))
        .replace(QLatin1String("%s"),
                 path.isEmpty() ? QString(QLatin1String("ussdprofile.xml")) : path);
}

void USSDEditCmd::sayRefusals(const SavePlan &plan)
{
    if (!plan.refusals.isEmpty())
        PluginMessage::show(QMessageBox::Information, messageParent(),
                            tr(QLatin1String("IDS_PROMPT_CAPTION")),
                            plan.refusals.join(QLatin1String("\n\n")), QLatin1String("IDS_OK"));
}

bool USSDEditCmd::confirmSaving()
{
    const int answer = PluginMessage::show(QMessageBox::Information, messageParent(),
                                           tr(QLatin1String("IDS_PROMPT_CAPTION")),
                                           tr(QLatin1String("IDC_CMDEDIT_SAVETIP")),
                                           QLatin1String("IDS_YES"), QLatin1String("IDS_NO"));
    return m_pFrame && answer == QMessageBox::Ok;
}

void USSDEditCmd::OnClickedCancelButton()
{
    USSD_LOG_SCOPE();
    closeWindow();
}

void USSDEditCmd::closeWindow()
{
    if (m_pContainer)
        m_pContainer->close();
    if (m_pFrame)
        m_pFrame->close();
}

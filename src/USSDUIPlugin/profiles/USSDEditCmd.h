#ifndef USSDEDITCMD_H
#define USSDEDITCMD_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include "ExtendDialog.h"
#include "PluginConfig.h"
#include "ProfileTableItemDelegate.h"
#include "ProfileTableWidget.h"
#include "requests/USSDLogic.h"
#include "USSDProfile.h"

class QLabel;
class QPushButton;
class QTableWidgetItem;
class QXmlStreamReader;

/**
 * The command profiles, those of the system file and then those that the user added, and the window
 * in which the user edits them. GUI thread.
 *
 * The list is read when the object is made; a second object sees the files as they are then. The
 * window is built by InitDialog() and run by Exec(), which comes back also when the host takes the
 * window away meanwhile.
 */
class USSDEditCmd : public QObject
{
    Q_OBJECT
public:
    /// What saveToXMLFile() returns.
    enum SaveStatus {
        SAVE_OK = 0,
        SAVE_NO_DIRECTORY = 21, // the user file's folder is missing and cannot be made
        SAVE_NO_PATH = 23,      // no user data folder
        SAVE_NOT_OPENED = 25    // the file cannot be opened for writing
    };

    USSDEditCmd();
    ~USSDEditCmd() override;

    void getSystemProfileXMLFilePath(QString &path);
    /// Empty when there is no user data folder. Moves a file of the old place to the new one.
    void getUserProfileXMLFilePath(QString &path);
    bool skipXmlReaderTillString(QXmlStreamReader &reader, QString name);
    /// Adds the profiles of one file. A user profile whose code is there already is dropped.
    void load(QString xmlFilePath, bool isSystem);
    /// Reads both files anew.
    void load();
    /// Replaces `list` by all profiles, in order.
    void GetProfileList(QList<USSDProfile> &list);
    /// Writes the profiles of one kind to their file. The old file is deleted first, so a failure
    /// leaves none; this order is intended.
    int saveToXMLFile(bool isSystem);

    /// Builds the window in a frame over `parent`.
    void InitDialog(QWidget *parent);
    /// Runs the window; whether the user saved.
    bool Exec();
    void SetLanguage();
    static QString tr(const QString &key);

public slots:
    void OnClickedSaveButton();
    void OnClickedCancelButton();
    void OnCellChanged(int row, int column);
    void OnEditorClosed(QWidget *editor);

private slots:
    void OnDuplicatesFound();

private:
    bool createWidgets();
    void initWidgets();
    void layoutWidgets();
    void connectWidgets();
    void initTable();
    void initHeader();
    void clearTable();
    void showProfile(int row, const USSDProfile &profile);
    /// The profiles that the table stands for, and whether that is a change.
    void readTableProfiles(QList<USSDProfile> &list, bool &changed);
    QString cellText(int row, int column) const;
    QString savedText(int row, int column) const;
    bool isDuplicate(int row, int column) const;
    void refuseLater(QTableWidgetItem *item);
    void refuseDuplicate(QTableWidgetItem *item);
    void sayDuplicate(int column);
    void deselectCurrentCell();
    void forgetEditedCell();
    bool confirmSaving();
    /// Which files can be written, and what to tell the user about those that cannot.
    struct SavePlan {
        SavePlan() : writesSystemFile(false), writesUserFile(false), losesChanges(false) {}

        bool writesSystemFile;
        bool writesUserFile;
        bool losesChanges; // to a file that cannot be written
        QStringList refusals;
    };
    SavePlan planSaving(const QList<USSDProfile> &newList);
    bool planFile(bool isSystem, const QList<USSDProfile> &newList, SavePlan &plan);
    void saveAsPlanned(SavePlan &plan);
    void saveFile(bool isSystem, SavePlan &plan);
    QString fileText(const char *key, bool isSystem);
    void sayRefusals(const SavePlan &plan);
    void closeWindow();
    QWidget *messageParent() const;

    QString profileFilePath(bool isSystem);
    enum Reading { NoFile, ReadWhole, NotReadWhole };
    void noteReading(bool isSystem, Reading reading);
    bool mayBeSavedOver(bool isSystem);
    QString movedLegacyFile(const QString &oldPath, const QString &newPath);
    bool makeParentDirectory(const QString &path, bool isSystem);

    QList<USSDProfile> m_listUSSDProfiles;
    CmdEdit m_cmdEditSetting;
    QPointer<USSDLogic> m_pLogic; // not owned
    // The frame is this object's; everything else is the frame's. A host may delete either.
    QPointer<QWidget> m_pContainer;
    QPointer<ExtendDialog> m_pFrame;
    ProfileTableItemDelegate m_delegate;
    QPointer<ProfileTableWidget> m_pTable;
    QPointer<QLabel> m_pInfoLabel;
    QPointer<QPushButton> m_pSaveButton;
    QPointer<QPushButton> m_pCancelButton;
    QTableWidgetItem *m_pEditedItem; // the cell that was changed last; null and -1 when none
    int m_iEditedColumn;
    int m_iEditedRow;
    QList<QTableWidgetItem *> m_refusedItems; // duplicates that wait for their message, or show it
    bool m_bSaved;
    Reading m_systemFileReading;
    Reading m_userFileReading;
};

#endif

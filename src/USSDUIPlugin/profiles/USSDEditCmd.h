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
 * The profiles and the window in which the user edits them. The profiles of the system file come
 * first, followed by the user's own profiles. All functions must be called from the GUI thread.
 *
 * The constructor reads both files. InitDialog() builds the window, and Exec() runs it until the
 * user closes it or the host deletes it.
 */
class USSDEditCmd : public QObject
{
    Q_OBJECT
public:
    /// The results of saveToXMLFile().
    enum SaveStatus {
        SAVE_OK = 0,
        SAVE_NO_DIRECTORY = 21, // the folder of the user file cannot be created
        SAVE_NO_PATH = 23,      // there is no user data folder
        SAVE_NOT_OPENED = 25    // the file cannot be opened for writing
    };

    USSDEditCmd();
    ~USSDEditCmd() override;

    void getSystemProfileXMLFilePath(QString &path);
    /// Sets `path` to the path of the user file, or to an empty string if there is no user data
    /// folder. A file in the former folder is moved to the current folder.
    void getUserProfileXMLFilePath(QString &path);
    bool skipXmlReaderTillString(QXmlStreamReader &reader, QString name);
    /// Appends the profiles of a file to the list. A user profile is skipped if its code is already
    /// in the list.
    void load(QString xmlFilePath, bool isSystem);
    /// Reads the profiles of both files, which replace the current list.
    void load();
    /// Sets `list` to all profiles in order.
    void GetProfileList(QList<Formats::USSDProfile> &list);
    /// Writes the system profiles or the user profiles to their file. The old file is intentionally
    /// deleted first, so it no longer exists if writing fails. Returns a SaveStatus.
    int saveToXMLFile(bool isSystem);

    /// Builds the window in a frame whose parent is `parent`.
    void InitDialog(QWidget *parent);
    /// Shows the window and waits until it is closed. Returns true if the user has saved the
    /// profiles.
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
    void showProfile(int row, const Formats::USSDProfile &profile);
    /// Sets `list` to the profiles in the table, and `changed` to true if they differ from the
    /// current profiles.
    void readTableProfiles(QList<Formats::USSDProfile> &list, bool &changed);
    QString cellText(int row, int column) const;
    QString savedText(int row, int column) const;
    bool isDuplicate(int row, int column) const;
    void refuseLater(QTableWidgetItem *item);
    void refuseDuplicate(QTableWidgetItem *item);
    void sayDuplicate(int column);
    void deselectCurrentCell();
    void forgetEditedCell();
    bool confirmSaving();
    /// The files that can be saved, and the error messages for the other files.
    struct SavePlan {
        SavePlan() : writesSystemFile(false), writesUserFile(false), losesChanges(false) {}

        bool writesSystemFile;
        bool writesUserFile;
        bool losesChanges; // true if changes would be lost because a file is not writable
        QStringList refusals;
    };
    SavePlan planSaving(const QList<Formats::USSDProfile> &newList);
    bool planFile(bool isSystem, const QList<Formats::USSDProfile> &newList, SavePlan &plan);
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

    QList<Formats::USSDProfile> m_listUSSDProfiles;
    Formats::CmdEdit m_cmdEditSetting;
    QPointer<USSDLogic> m_pLogic; // not owned
    // This object owns the frame, which in turn owns the other widgets. The host may delete any of
    // them.
    QPointer<QWidget> m_pContainer;
    QPointer<ExtendDialog> m_pFrame;
    ProfileTableItemDelegate m_delegate;
    QPointer<ProfileTableWidget> m_pTable;
    QPointer<QLabel> m_pInfoLabel;
    QPointer<QPushButton> m_pSaveButton;
    QPointer<QPushButton> m_pCancelButton;
    QTableWidgetItem *m_pEditedItem; // the cell that was changed last, or null
    int m_iEditedColumn;
    int m_iEditedRow;
    QList<QTableWidgetItem *> m_refusedItems; // duplicates whose message box is pending or open
    bool m_bSaved;
    Reading m_systemFileReading;
    Reading m_userFileReading;
};

#endif

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
 * The command profiles, and the window in which the user edits them. The profiles of the system
 * file come first, followed by the profiles that the user has added. All functions must be called
 * from the GUI thread.
 *
 * The constructor reads the profiles, so a second object reads the files again. InitDialog() builds
 * the window, and Exec() runs it. Exec() also returns if the host deletes the window.
 */
class USSDEditCmd : public QObject
{
    Q_OBJECT
public:
    /// The return values of saveToXMLFile().
    enum SaveStatus {
        SAVE_OK = 0,
        SAVE_NO_DIRECTORY = 21, // the folder of the user file is missing and cannot be created
        SAVE_NO_PATH = 23,      // there is no user data folder
        SAVE_NOT_OPENED = 25    // the file cannot be opened for writing
    };

    USSDEditCmd();
    ~USSDEditCmd() override;

    void getSystemProfileXMLFilePath(QString &path);
    /// Sets `path` to the path of the user file, or to an empty string if there is no user data
    /// folder. If the file is still in its former folder, moves it to the current folder.
    void getUserProfileXMLFilePath(QString &path);
    bool skipXmlReaderTillString(QXmlStreamReader &reader, QString name);
    /// Adds the profiles of one file. A user profile is dropped if its code is already in the list.
    void load(QString xmlFilePath, bool isSystem);
    /// Replaces the list with the profiles of both files.
    void load();
    /// Replaces `list` with all profiles, in order.
    void GetProfileList(QList<Formats::USSDProfile> &list);
    /// Writes the system profiles or the user profiles to their file. Intentionally deletes the old
    /// file first. Therefore, the file does not exist after a failure.
    int saveToXMLFile(bool isSystem);

    /// Builds the window in a frame whose parent is `parent`.
    void InitDialog(QWidget *parent);
    /// Runs the window. Returns true if the user has saved the profiles.
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
    /// Sets `list` to the profiles in the table. Sets `changed` to true if they differ from the
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
    /// The files that can be written, and the error messages for the other files.
    struct SavePlan {
        SavePlan() : writesSystemFile(false), writesUserFile(false), losesChanges(false) {}

        bool writesSystemFile;
        bool writesUserFile;
        bool losesChanges; // true if a file with changes cannot be written
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
    // This object owns the frame, and the frame owns all other widgets. However, the host may
    // delete any of them.
    QPointer<QWidget> m_pContainer;
    QPointer<ExtendDialog> m_pFrame;
    ProfileTableItemDelegate m_delegate;
    QPointer<ProfileTableWidget> m_pTable;
    QPointer<QLabel> m_pInfoLabel;
    QPointer<QPushButton> m_pSaveButton;
    QPointer<QPushButton> m_pCancelButton;
    QTableWidgetItem *m_pEditedItem; // the last changed cell; null if there is none
    int m_iEditedColumn;
    int m_iEditedRow;
    QList<QTableWidgetItem *> m_refusedItems; // duplicates whose message box is queued or open
    bool m_bSaved;
    Reading m_systemFileReading;
    Reading m_userFileReading;
};

#endif

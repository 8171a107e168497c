#include "ProvisionWriter.h"

#include <QDir>
#include <QFileInfo>

#include "FileSteps.h"
#include "PluginFiles.h"

using namespace Formats;

namespace Provisioning
{

namespace
{

const QLatin1String PLUGINS("/plugins");
const QLatin1String IN_USE = PluginFiles::FOLDER; // the link to the active set of files
const QLatin1String SETS("/provisioned");
const QLatin1String LINKED_SETS("../provisioned/"); // relative to the link
const QLatin1String LOCK("/provisioned/.lock");
const QLatin1String UNFINISHED(".new");

const QDir::Filters ALL = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

/// Returns the number of the set of files that is stored in a folder with this name, or 0 if the
/// name is not a number.
int setNumber(const QString &name)
{
    bool ok = false;
    const int number = name.toInt(&ok);
    return ok && number > 0 && QString::number(number) == name ? number : 0;
}

ProvisionRecord recordOf(const QString &filesFolder)
{
    return provisionRecordFrom(
        FileSteps::content(filesFolder + QLatin1Char('/') + provisionRecordName()));
}

bool isOurs(const QString &filesFolder, const QString &name, const ProvisionRecord &record)
{
    const QString path = filesFolder + QLatin1Char('/') + name;
    if (name == PluginFiles::LIBRARY)
        return QFileInfo(path).isSymLink();
    if (name == provisionRecordName())
        return record.isValid();
    return record.files.contains(name) && !QFileInfo(path).isSymLink() &&
           QFileInfo(path).isFile() &&
           provisionChecksum(FileSteps::content(path)) == record.files.value(name);
}

/// Returns the names of the files that have been modified or added manually. If the record is
/// damaged, returns all file names except that of the link to the plug-in.
QStringList changedIn(const QString &filesFolder, const ProvisionRecord &record)
{
    QStringList changed;
    const QStringList names = QDir(filesFolder).entryList(ALL, QDir::Name);
    for (int i = 0; i < names.count(); ++i) {
        if (!isOurs(filesFolder, names.at(i), record))
            changed << names.at(i);
    }
    return changed;
}

bool hasAll(const QString &filesFolder, const ProvisionRecord &record)
{
    const QStringList names = record.files.keys();
    for (int i = 0; i < names.count(); ++i) {
        if (!QFileInfo(filesFolder + QLatin1Char('/') + names.at(i)).isFile())
            return false;
    }
    return record.isValid();
}

/// Removes a set of files and its folder. Does nothing if a file has been modified or added
/// manually.
void removeUnchanged(const QString &filesFolder)
{
    const ProvisionRecord record = recordOf(filesFolder);
    if (!changedIn(filesFolder, record).isEmpty())
        return; // the record is required to identify the modified files
    const QStringList names = QDir(filesFolder).entryList(ALL);
    for (int i = 0; i < names.count(); ++i) {
        if (names.at(i) != provisionRecordName() && isOurs(filesFolder, names.at(i), record))
            QFile::remove(filesFolder + QLatin1Char('/') + names.at(i));
    }
    QFile::remove(filesFolder + QLatin1Char('/') + provisionRecordName());
    QDir().rmdir(filesFolder);
}

/// Removes a set of files that a killed process or a failed operation has left unfinished. The name
/// of its folder ends with UNFINISHED, and the set has never been active.
void removeUnfinished(const QString &filesFolder)
{
    const QStringList names = QDir(filesFolder).entryList(ALL);
    for (int i = 0; i < names.count(); ++i)
        QFile::remove(filesFolder + QLatin1Char('/') + names.at(i));
    QDir().rmdir(filesFolder);
}

/** Writes a set of files. If another process is writing to the same folder, write() waits for it.
 */
class Writer
{
public:
    Writer(const ProvisionOrder &order, const ProvisionPlan &plan, const ProvisionFiles &files);
    ProvisionOutcome write();

private:
    bool prepare();
    void makeRecord();
    bool isSame() const;
    bool mayReplace();
    void relink();
    void install();
    int nextNumber() const;
    bool makeSet(const QString &unfinished);
    bool linkPlugin(const QString &filesFolder);
    bool putInUse(int number);
    void tidyUp(int inUse);
    QStringList changedPaths() const;
    ProvisionOutcome ended(ProvisionOutcome::State state, const QString &problem = QString());

    const ProvisionOrder &m_order;
    const ProvisionPlan &m_plan;
    const ProvisionFiles &m_files;
    ProvisionRecord m_record;
    Provision m_old;
    ProvisionOutcome m_outcome;
};

Writer::Writer(const ProvisionOrder &order, const ProvisionPlan &plan, const ProvisionFiles &files)
    : m_order(order), m_plan(plan), m_files(files)
{
    makeRecord();
}

void Writer::makeRecord()
{
    m_record.country = m_plan.country;
    m_record.provider = m_plan.provider;
    m_record.network = m_plan.network;
    m_record.files.insert(PluginFiles::CONFIGURATION, provisionChecksum(m_files.configuration));
    m_record.files.insert(PluginFiles::SYSTEM_PROFILES, provisionChecksum(m_files.profiles));
}

ProvisionOutcome Writer::write()
{
    if (!m_files.error.isEmpty() || m_files.configuration.isEmpty() || m_files.profiles.isEmpty())
        return ended(ProvisionOutcome::Failed, QLatin1String("there is nothing to write"));
    if (!prepare())
        return ended(ProvisionOutcome::Failed, m_outcome.problem);
    const FileSteps::Lock lock(m_order.folder + LOCK);
    if (!lock.isHeld())
        return ended(ProvisionOutcome::Failed,
                     m_order.folder + LOCK + QLatin1String(": it cannot be locked"));
    m_old = readProvision(m_order.folder);
    m_outcome.changedFiles = changedPaths();
    if (m_old.isForeign)
        return ended(ProvisionOutcome::Refused,
                     m_order.folder + IN_USE +
                         QLatin1String(" was not provisioned and is left unchanged"));
    if (isSame() && hasAll(m_old.filesFolder, m_old.record)) {
        relink();
        return m_outcome;
    }
    if (!mayReplace())
        return ended(ProvisionOutcome::Refused,
                     QLatin1String("somebody has changed ") +
                         m_outcome.changedFiles.join(QLatin1String(", ")) +
                         QLatin1String("; nothing was written"));
    install();
    return m_outcome;
}

bool Writer::prepare()
{
    return FileSteps::makeFolder(m_order.folder + PLUGINS, m_outcome.problem) &&
           FileSteps::makeFolder(m_order.folder + SETS, m_outcome.problem);
}

bool Writer::isSame() const
{
    return m_old.record.isValid() && m_old.record.files == m_record.files &&
           m_old.record.country == m_record.country && m_old.record.provider == m_record.provider &&
           m_old.record.network == m_record.network;
}

bool Writer::mayReplace()
{
    return m_old.changedFiles.isEmpty() || m_order.setChangedAside;
}

/// Keeps the files but updates the link to the plug-in, whose location may have changed.
void Writer::relink()
{
    ended(ProvisionOutcome::Current);
    tidyUp(setNumber(QFileInfo(m_old.filesFolder).fileName()));
    const QString path = m_old.filesFolder + QLatin1Char('/') + PluginFiles::LIBRARY;
    if (m_order.pluginLibrary.isEmpty() || FileSteps::linkTarget(path) == m_order.pluginLibrary)
        return;
    const QString beside =
        m_order.folder + SETS + QLatin1Char('/') + PluginFiles::LIBRARY + UNFINISHED;
    QFile::remove(beside);
    if (!FileSteps::link(m_order.pluginLibrary, beside, m_outcome.problem) ||
        !FileSteps::rename(beside, path, m_outcome.problem))
        m_outcome.state = ProvisionOutcome::Failed;
}

void Writer::install()
{
    const int number = nextNumber();
    const QString place = m_order.folder + SETS + QLatin1Char('/') + QString::number(number);
    removeUnfinished(place + UNFINISHED);
    const bool made = makeSet(place + UNFINISHED) &&
                      FileSteps::rename(place + UNFINISHED, place, m_outcome.problem) &&
                      FileSteps::syncFolder(m_order.folder + SETS, m_outcome.problem) &&
                      putInUse(number);
    if (!made) {
        removeUnfinished(place + UNFINISHED);
        return void(ended(ProvisionOutcome::Failed, m_outcome.problem));
    }
    ended(ProvisionOutcome::Written);
    if (!m_old.changedFiles.isEmpty())
        m_outcome.keptFolder = m_old.filesFolder;
    tidyUp(number);
}

int Writer::nextNumber() const
{
    int highest = 0;
    const QStringList names = QDir(m_order.folder + SETS).entryList(ALL);
    for (int i = 0; i < names.count(); ++i)
        highest = qMax(highest, setNumber(names.at(i)));
    return highest + 1;
}

bool Writer::makeSet(const QString &unfinished)
{
    QString &problem = m_outcome.problem;
    const QString folder = unfinished + QLatin1Char('/');
    return FileSteps::makeFolder(unfinished, problem) &&
           FileSteps::writeNew(folder + PluginFiles::CONFIGURATION, m_files.configuration,
                               problem) &&
           FileSteps::writeNew(folder + PluginFiles::SYSTEM_PROFILES, m_files.profiles, problem) &&
           FileSteps::writeNew(folder + provisionRecordName(), provisionRecordText(m_record),
                               problem) &&
           linkPlugin(unfinished) && FileSteps::syncFolder(unfinished, problem);
}

bool Writer::linkPlugin(const QString &filesFolder)
{
    return m_order.pluginLibrary.isEmpty() ||
           FileSteps::link(m_order.pluginLibrary,
                           filesFolder + QLatin1Char('/') + PluginFiles::LIBRARY,
                           m_outcome.problem);
}

/// Activates the new set of files for the plug-in. Returns true on success.
bool Writer::putInUse(int number)
{
    const QString path = m_order.folder + IN_USE;
    QFile::remove(path + UNFINISHED);
    return FileSteps::link(LINKED_SETS + QString::number(number), path + UNFINISHED,
                           m_outcome.problem) &&
           FileSteps::rename(path + UNFINISHED, path, m_outcome.problem) &&
           FileSteps::syncFolder(m_order.folder + PLUGINS, m_outcome.problem);
}

/// Removes old sets of files, including the unfinished sets of processes that were killed.
void Writer::tidyUp(int inUse)
{
    const QString sets = m_order.folder + SETS + QLatin1Char('/');
    const QStringList names = QDir(sets).entryList(ALL);
    for (int i = 0; i < names.count(); ++i) {
        const QString &name = names.at(i);
        if (name.endsWith(UNFINISHED) &&
            setNumber(name.left(name.length() - QString(UNFINISHED).length())))
            removeUnfinished(sets + name);
        else if (setNumber(name) && setNumber(name) != inUse)
            removeUnchanged(sets + name);
    }
}

QStringList Writer::changedPaths() const
{
    QStringList paths;
    for (int i = 0; i < m_old.changedFiles.count(); ++i)
        paths << m_old.filesFolder + QLatin1Char('/') + m_old.changedFiles.at(i);
    return paths;
}

ProvisionOutcome Writer::ended(ProvisionOutcome::State state, const QString &problem)
{
    m_outcome.state = state;
    m_outcome.problem = problem;
    return m_outcome;
}

} // namespace

bool Provision::isUsable() const
{
    return !isForeign && record.isValid() && hasAll(filesFolder, record);
}

Provision readProvision(const QString &folder)
{
    Provision provision;
    const QString place = folder + IN_USE;
    if (!FileSteps::exists(place))
        return provision;
    const QString target = FileSteps::linkTarget(place);
    const QString name = target.mid(QString(LINKED_SETS).length());
    if (!target.startsWith(LINKED_SETS) || !setNumber(name)) {
        provision.isForeign = true;
        return provision;
    }
    provision.filesFolder = folder + SETS + QLatin1Char('/') + name;
    provision.record = recordOf(provision.filesFolder);
    provision.changedFiles = changedIn(provision.filesFolder, provision.record);
    return provision;
}

ProvisionOutcome writeProvision(const ProvisionOrder &order, const ProvisionPlan &plan,
                                const ProvisionFiles &files)
{
    return Writer(order, plan, files).write();
}

QString userDataHome()
{
    const QString chosen = QFile::decodeName(qgetenv("XDG_DATA_HOME"));
    const QString data = chosen.startsWith(QLatin1Char('/'))
                             ? chosen
                             : QDir::homePath() + QLatin1String("/.local/share");
    return data + QLatin1String("/ussd-dashboard");
}

QString operatorsFolder()
{
    return userDataHome() + QLatin1String("/operators");
}

QString operatorFolder(const QString &operators, const QString &network)
{
    return operators + QLatin1Char('/') + network;
}

} // namespace Provisioning

/* Tests the queue in which the programs of a user wait for their turn to use a modem for USSD. */
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>
#include <sched.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/SessionTurn.h"

using Tksv::SessionTurn;

namespace
{

const char MODEM[] = "350000000000017";
const int PROGRAMS = 8;

void waitForTurn(SessionTurn &turn)
{
    while (!turn.tryEnter())
        sched_yield();
}

/** A pipe through which child processes send bytes to the test. */
class Pipe
{
public:
    Pipe() { m_isOpen = pipe(m_ends) == 0; }
    ~Pipe()
    {
        close(m_ends[0]);
        close(m_ends[1]);
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    void write(char value) const
    {
        if (!m_isOpen || ::write(m_ends[1], &value, 1) != 1)
            _exit(3);
    }
    char read() const
    {
        char value = 0;
        return ::read(m_ends[0], &value, 1) == 1 ? value : '\0';
    }

private:
    int m_ends[2] = {-1, -1};
    bool m_isOpen = false;
};

/// Runs the function in a child process. The exit code of the process is the result of the
/// function.
pid_t startProgram(const std::function<int()> &function)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(60); // ends a program that waits forever
        _exit(function());
    }
    return child;
}

int resultOf(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

} // namespace

class SdkTurn : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void firstComeFirstServed();
    void modemsHaveQueuesOfTheirOwn();
    void programsTakeTurnsInTheirOrder();
    void eightProgramsAtOnceExcludeEachOther();
    void programThatCrashesLeavesTheQueue();
    void waitingProgramThatCrashesIsSkipped();
    void nameOfAModemStaysInTheFolder();
    void symbolicLinkIsNotFollowed();
    void folderThatOthersCanWriteToIsNotUsed();
    void runtimeFolderOfAnotherUserIsNotUsed();

private:
    QString queues() const { return m_folder->path() + QLatin1String("/ussd-dashboard"); }
    QStringList tickets() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void SdkTurn::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    qputenv("XDG_RUNTIME_DIR", m_folder->path().toUtf8());
}

void SdkTurn::cleanup()
{
    m_folder.reset();
}

QStringList SdkTurn::tickets() const
{
    QStringList names =
        QDir(queues() + QLatin1Char('/') + QLatin1String(MODEM)).entryList(QDir::Files);
    names.removeAll(QLatin1String("door"));
    return names;
}

void SdkTurn::firstComeFirstServed()
{
    SessionTurn first(MODEM);
    SessionTurn second(MODEM);
    SessionTurn third(MODEM);
    QVERIFY(first.tryEnter());
    QVERIFY(!second.tryEnter());
    QVERIFY(!third.tryEnter());
    QVERIFY(first.tryEnter()); // `first` still has its turn
    first.leave();
    QVERIFY(!third.tryEnter());
    QVERIFY(!first.tryEnter()); // `first` is now at the end of the queue
    QVERIFY(second.tryEnter());
    second.leave();
    QVERIFY(third.tryEnter());
    third.leave();
    QVERIFY(first.tryEnter());
    first.leave();
    QCOMPARE(tickets(), QStringList());
}

void SdkTurn::modemsHaveQueuesOfTheirOwn()
{
    SessionTurn one(MODEM);
    SessionTurn other("350000000000025");
    QVERIFY(one.tryEnter());
    QVERIFY(other.tryEnter());
}

void SdkTurn::programsTakeTurnsInTheirOrder()
{
    const Pipe waiting;
    const Pipe served;
    SessionTurn holder(MODEM);
    QVERIFY(holder.tryEnter());
    std::vector<pid_t> children;
    for (char i = 0; i < PROGRAMS; ++i) {
        children.push_back(startProgram([&, i] {
            SessionTurn turn(MODEM);
            const bool hasWaited = !turn.tryEnter();
            waiting.write('w');
            waitForTurn(turn);
            served.write(char('0' + i));
            turn.leave();
            return hasWaited ? 0 : 1;
        }));
        QCOMPARE(waiting.read(), 'w'); // the child process has joined the queue
    }
    holder.leave();
    for (char i = 0; i < PROGRAMS; ++i)
        QCOMPARE(served.read(), char('0' + i));
    for (const pid_t child : children)
        QCOMPARE(resultOf(child), 0);
    QCOMPARE(tickets(), QStringList());
}

void SdkTurn::eightProgramsAtOnceExcludeEachOther()
{
    const QByteArray inside = (m_folder->path() + QLatin1String("/inside")).toUtf8();
    std::vector<pid_t> children;
    children.reserve(PROGRAMS);
    for (int i = 0; i < PROGRAMS; ++i)
        children.push_back(startProgram([&] {
            SessionTurn turn(MODEM);
            for (int round = 0; round < 50; ++round) {
                waitForTurn(turn);
                const int file = open(inside.constData(), O_CREAT | O_EXCL | O_CLOEXEC, 0600);
                if (file < 0)
                    return 1; // another program has its turn at the same time
                sched_yield();
                close(file);
                unlink(inside.constData());
                turn.leave();
            }
            return 0;
        }));
    for (const pid_t child : children)
        QCOMPARE(resultOf(child), 0);
    QCOMPARE(tickets(), QStringList());
}

void SdkTurn::programThatCrashesLeavesTheQueue()
{
    const pid_t child = startProgram([] {
        SessionTurn turn(MODEM);
        if (!turn.tryEnter())
            return 1;
        raise(SIGKILL);
        return 2;
    });
    QCOMPARE(resultOf(child), -SIGKILL);
    QCOMPARE(tickets().size(), 1);
    SessionTurn next(MODEM);
    QVERIFY(next.tryEnter());
    QCOMPARE(tickets().size(), 1); // the ticket of `next`
}

void SdkTurn::waitingProgramThatCrashesIsSkipped()
{
    SessionTurn holder(MODEM);
    QVERIFY(holder.tryEnter());
    const pid_t child = startProgram([] {
        SessionTurn turn(MODEM);
        if (turn.tryEnter())
            return 1;
        raise(SIGKILL);
        return 2;
    });
    QCOMPARE(resultOf(child), -SIGKILL);
    SessionTurn next(MODEM);
    QVERIFY(!next.tryEnter());
    holder.leave();
    QVERIFY(next.tryEnter());
}

void SdkTurn::nameOfAModemStaysInTheFolder()
{
    SessionTurn turn("../../x y");
    QVERIFY(turn.tryEnter());
    QCOMPARE(QDir(queues()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList(QLatin1String("______x_y")));
}

void SdkTurn::symbolicLinkIsNotFollowed()
{
    const QString target = m_folder->path() + QLatin1String("/target");
    QVERIFY(QDir().mkdir(target));
    QVERIFY(QFile::link(target, queues()));
    SessionTurn first(MODEM);
    SessionTurn second(MODEM);
    QVERIFY(first.tryEnter());
    QVERIFY(second.tryEnter()); // no other program is waiting
    QVERIFY(QDir(target).isEmpty());
}

void SdkTurn::folderThatOthersCanWriteToIsNotUsed()
{
    QVERIFY(QDir().mkdir(queues()));
    QCOMPARE(chmod(queues().toUtf8().constData(), 0777), 0);
    SessionTurn first(MODEM);
    SessionTurn second(MODEM);
    QVERIFY(first.tryEnter());
    QVERIFY(second.tryEnter()); // no other program is waiting
    QVERIFY(QDir(queues()).isEmpty());
}

/// Tests that the queue is not created in another user's folder. A program that was started with
/// "su" can inherit an environment variable with the path of such a folder. If the program created
/// the queue there, the other user's programs could no longer use their queue.
void SdkTurn::runtimeFolderOfAnotherUserIsNotUsed()
{
    const uid_t another = 65534;
    if (geteuid() == 0)
        QCOMPARE(chown(m_folder->path().toUtf8().constData(), another, gid_t(-1)), 0);
    else
        qputenv("XDG_RUNTIME_DIR", "/");
    SessionTurn turn("modem of process " + std::to_string(getpid()));
    QVERIFY(turn.tryEnter());
    QVERIFY(!QDir(queues()).exists());
    QVERIFY(!QDir(QLatin1String("/ussd-dashboard")).exists());
}

QTEST_APPLESS_MAIN(SdkTurn)
#include "sdk_turn_test.moc"

#ifndef CODEHISTORY_H
#define CODEHISTORY_H

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

namespace Dashboard
{

/** A code that the user has sent. */
struct SentCode {
    QString code; // without numbers and PINs, see codeWithoutNumbers()
    QDateTime time;

    bool operator==(const SentCode &other) const
    {
        return code == other.code && time == other.time;
    }
};

/**
 * The codes that the user has sent, newest first, each once, at most 50. They are kept in a file
 * that only its owner can read. The file is a text file in UTF-8 with one code in each line: the
 * time in ISO 8601 (UTC), a tab, and the code. A line that cannot be read is skipped.
 */
class CodeHistory : public QObject
{
    Q_OBJECT
public:
    /// Reads the file. If `file` is empty, nothing is kept on disk.
    explicit CodeHistory(const QString &file, QObject *parent = nullptr);
    /// Returns the path of the file of the user who runs the program.
    static QString fileOfUser();

    const QList<SentCode> &codes() const { return m_codes; }
    /// Sets whether the codes are kept on disk. If not, deletes the file.
    void setKept(bool isKept);

public slots:
    /// Records that the code was sent now. Digits that may be a number or a PIN are removed again,
    /// in case the caller has not removed them.
    void add(const QString &code);
    /// Deletes all codes and the file.
    void deleteAll();

signals:
    void changed();
    /// Emitted with the system's error message if the file cannot be written.
    void notWritten(const QString &error);

private:
    void read();
    void write();

    const QString m_file;
    bool m_isKept = true;
    QList<SentCode> m_codes;
};

} // namespace Dashboard

#endif

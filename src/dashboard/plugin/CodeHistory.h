#ifndef CODEHISTORY_H
#define CODEHISTORY_H

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QStringList>

namespace Dashboard
{

/** A code that the user has sent. */
struct SentCode {
    QString code; // without numbers and PINs; see codeWithoutNumbers()
    QDateTime time;

    bool operator==(const SentCode &other) const
    {
        return code == other.code && time == other.time;
    }
};

/**
 * The 50 codes that the user has most recently sent, starting with the newest one and without
 * duplicates. They are stored in a file that only its owner can read. Each line of this UTF-8 text
 * file contains the time in ISO 8601 format (UTC), a tab, and a code. Invalid lines are skipped.
 */
class CodeHistory : public QObject
{
    Q_OBJECT
public:
    /// Reads the file. If `file` is empty, the history is only kept in memory.
    explicit CodeHistory(const QString &file, QObject *parent = nullptr);
    /// Returns the path of the file of the user who runs the program.
    static QString fileOfUser();

    const QList<SentCode> &codes() const { return m_codes; }
    /// Sets whether the codes are stored on disk. If `isKept` is false, deletes the file.
    void setKept(bool isKept);
    /// Sets whether the device is a simulated network. Codes that are sent to a simulated network
    /// have a separate list, which is only kept in memory.
    void setInvented(bool isInvented);
    /// Sets the codes of the operator and of the user; see codeWithoutNumbers().
    void setTemplates(const QStringList &templates) { m_templates = templates; }

public slots:
    /// Records that the code was sent now. As a precaution, digits that may be a number or a PIN
    /// are hidden even if the caller has already hidden them.
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
    QStringList m_templates;
    bool m_isKept = true;
    bool m_isInvented = false;
    QList<SentCode> m_codes;
    // The codes sent to real networks while m_isInvented is true, otherwise those sent to simulated
    // networks.
    QList<SentCode> m_others;
};

} // namespace Dashboard

#endif

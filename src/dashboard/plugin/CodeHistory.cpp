#include "CodeHistory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "base/PrivateFile.h"
#include "CodeForms.h"
#include "InputFile.h"
#include "ProvisionWriter.h"
#include "UssdCode.h"

namespace Dashboard
{

namespace
{

const int MOST_CODES = 50;
const qint64 LARGEST_FILE = 65536; // bytes

/// Returns true if the string is a code, even if some of its digits are hidden.
bool isKeepable(const QString &code)
{
    return Formats::isUssdCode(QString(code).replace(HIDDEN_DIGITS, QLatin1Char('0')));
}

bool readLine(const QString &line, SentCode &sent)
{
    const int tab = line.indexOf(QLatin1Char('\t'));
    sent.time = QDateTime::fromString(line.left(tab), Qt::ISODate);
    sent.code = line.mid(tab + 1); // numbers were hidden before the code was stored
    return tab > 0 && sent.time.isValid() && isKeepable(sent.code);
}

} // namespace

CodeHistory::CodeHistory(const QString &file, QObject *parent) : QObject(parent), m_file(file)
{
    read();
}

QString CodeHistory::fileOfUser()
{
    return Provisioning::userDataHome() + QLatin1String("/code-history");
}

void CodeHistory::setKept(bool isKept)
{
    m_isKept = isKept;
    if (!isKept && !m_file.isEmpty())
        QFile::remove(m_file);
}

void CodeHistory::setInvented(bool isInvented)
{
    if (isInvented == m_isInvented)
        return;
    m_isInvented = isInvented;
    m_codes.swap(m_others);
    emit changed();
}

void CodeHistory::add(const QString &code)
{
    SentCode sent;
    sent.code = codeWithoutNumbers(code, m_templates);
    sent.time = QDateTime::currentDateTimeUtc();
    if (!isKeepable(sent.code))
        return;
    for (int i = m_codes.size() - 1; i >= 0; --i) {
        if (m_codes.at(i).code == sent.code)
            m_codes.removeAt(i);
    }
    m_codes.prepend(sent);
    if (m_codes.size() > MOST_CODES)
        m_codes.removeLast();
    write();
    emit changed();
}

void CodeHistory::deleteAll()
{
    m_codes.clear();
    m_others.clear();
    if (!m_file.isEmpty())
        QFile::remove(m_file);
    emit changed();
}

void CodeHistory::read()
{
    QByteArray content;
    QString problem;
    if (m_file.isEmpty() || !InputFile::read(m_file, content, problem, LARGEST_FILE))
        return;
    for (const QString &line : QString::fromUtf8(content).split(QLatin1Char('\n'))) {
        SentCode sent;
        if (readLine(line, sent) && m_codes.size() < MOST_CODES)
            m_codes << sent;
    }
}

void CodeHistory::write()
{
    if (!m_isKept || m_isInvented || m_file.isEmpty())
        return;
    QDir().mkpath(QFileInfo(m_file).path());
    QByteArray content;
    for (const SentCode &sent : m_codes)
        content += sent.time.toString(Qt::ISODate).toUtf8() + '\t' + sent.code.toUtf8() + '\n';
    const QString error = writePrivateFile(m_file, content);
    if (!error.isEmpty())
        emit notWritten(error);
}

} // namespace Dashboard

#ifndef REPLYPATTERNS_H
#define REPLYPATTERNS_H

#include <QMap>
#include <QRegularExpression>

#include "ReplyReading.h"

namespace Dashboard
{

/**
 * An operator's patterns for the values of replies; see ReplyPatternFile.h. A value that has a
 * pattern is read with this pattern only. The other values are read by the general rules.
 */
class ReplyPatterns
{
public:
    ReplyPatterns() = default;
    /// Reads the file. A pattern with an error is ignored, so that its value is read by the general
    /// rules. A missing file has no patterns.
    static ReplyPatterns fromFile(const QString &path);
    /// Returns the patterns for the operator whose files are in use.
    static ReplyPatterns inUse();

    ReplyReading read(const QString &text) const;

private:
    bool has(const QString &name) const { return m_patterns.contains(name); }
    QString value(const QString &name, const QString &text) const;
    std::optional<Money> amount(const QString &text) const;
    std::optional<QDate> date(const QString &text) const;
    std::optional<QString> number(const QString &text) const;
    std::optional<DataVolume> data(const QString &text) const;

    QMap<QString, QRegularExpression> m_patterns;
    QString m_currency;
    QString m_dateFormat;
};

} // namespace Dashboard

#endif

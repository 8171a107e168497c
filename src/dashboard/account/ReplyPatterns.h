#ifndef REPLYPATTERNS_H
#define REPLYPATTERNS_H

#include <QMap>
#include <QRegularExpression>

#include "ReplyReading.h"

namespace Dashboard
{

/**
 * An operator's patterns for the values in replies; see ReplyPatternFile.h. If there is a pattern
 * for a value, it replaces the rules of readReply() for this value.
 */
class ReplyPatterns
{
public:
    ReplyPatterns() = default;
    /// Reads the patterns from the file. Invalid patterns are ignored, so that the rules of
    /// readReply() apply to their values. A missing file is treated as an empty one.
    static ReplyPatterns fromFile(const QString &path);
    /// Returns the patterns of the operator whose configuration is in use.
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

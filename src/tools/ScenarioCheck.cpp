#include "ScenarioCheck.h"

#include "sim/ScenarioReader.h"

namespace Tools
{

namespace
{

QString text(const std::string &utf8)
{
    return QString::fromUtf8(utf8.data(), int(utf8.size()));
}

CheckTable networkTable(const Tksv::Scenario &scenario)
{
    CheckTable table;
    table.title = QLatin1String("Network");
    table.rows << (QStringList() << QLatin1String("Operator") << text(scenario.operatorName))
               << (QStringList() << QLatin1String("IMSI") << text(scenario.imsi))
               << (QStringList() << QLatin1String("Signal")
                                 << QString::number(scenario.signalPercent));
    return table;
}

CheckTable codesTable(const Tksv::Scenario &scenario)
{
    CheckTable table;
    table.title = QLatin1String("Codes and answers");
    for (const auto &rule : scenario.rules)
        table.rows << (QStringList() << text(rule.first)
                                     << (rule.second.goTo.empty()
                                             ? text(rule.second.reply).simplified()
                                             : QLatin1String("as ") + text(rule.second.goTo)));
    return table;
}

} // namespace

void checkScenario(const QByteArray &content, CheckReport &report)
{
    const Tksv::ScenarioResult result = Tksv::readScenario(
        std::string(content.constData(), size_t(content.size())), report.file.toUtf8().constData());
    for (const Tksv::Complaint &complaint : result.complaints)
        addFinding(report, complaint.line, 0, "scenario", text(complaint.text));
    if (!result.scenario)
        return;
    report.tables << networkTable(*result.scenario) << codesTable(*result.scenario);
}

} // namespace Tools

#ifndef TEXTSCHECK_H
#define TEXTSCHECK_H

#include <QByteArray>

#include "CheckReport.h"

namespace Tools
{

/// Returns true if the contents are those of an operator's text file: the first section is named
/// after a language, such as "de" or "pt_BR".
bool isTexts(const QByteArray &content);

/// Checks an operator's text file. The keys that the operator uses in addition to the plug-in's
/// keys are determined from the other files in the folder of `report.file`.
void checkTexts(const QByteArray &content, CheckReport &report);

} // namespace Tools

#endif

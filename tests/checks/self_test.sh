#!/usr/bin/env bash
# Tests that each check detects the faults that it is meant to detect. Each test uses a small source
# tree with a single fault.
set -u
checks=$(cd "$(dirname "$0")" && pwd)
source_tree=$(cd "$1" && pwd) || exit 2
tree=$(mktemp -d) || exit 2
trap 'rm -rf "$tree"' EXIT
wrong=0

# write FILE: writes standard input to the file.
write() {
    mkdir -p "$tree/$(dirname "$1")"
    cat >"$tree/$1"
}

fresh_tree() {
    rm -rf "${tree:?}"/*
    cp "$source_tree/.clang-format" "$tree/"
    write src/sdk/tksv.h </dev/null
    write src/sdk/tksv_device.h </dev/null
    write src/sdk/EventService.h </dev/null
    write src/sdk/base/Text.h </dev/null
    write src/sdk/sim/Scenario.h </dev/null
    write src/sdk/modemmanager/ModemWatch.h </dev/null
    write src/core/common/Change.h </dev/null
    write src/core/Languages.h </dev/null
    write src/compat/QtCompat.h <<<'#if QT_VERSION < 0x050000
#endif'
    write src/USSDUIPlugin/USSDLogic.h </dev/null
    write src/USSDUIPlugin/windows/Dialog.h </dev/null
    write src/dashboard/window/Page.h </dev/null
    write src/dashboard/Program.h </dev/null
}

# passes CHECK: requires that the check does not find any fault.
passes() {
    local said
    said=$(bash "$checks/$1.sh" "$tree" 2>&1) && return
    printf '%s finds fault with a good tree:\n%s\n' "$1" "$said"
    wrong=1
}

# finds CHECK PATTERN FILE: writes standard input to FILE, and requires that the check prints a line
# that matches PATTERN.
finds() {
    local said
    fresh_tree
    write "$3"
    if said=$(bash "$checks/$1.sh" "$tree" 2>&1) || ! grep -qE "$2" <<<"$said"; then
        printf '%s does not find "%s" in %s; it says:\n%s\n' "$1" "$2" "$3" "$said"
        wrong=1
    fi
}

fresh_tree
write src/USSDUIPlugin/USSDLogic.cpp <<'CODE'
#include "USSDLogic.h"

#include "Change.h"
#include "QtCompat.h"
#include "tksv.h"

#include <map>
#include <QString>

// QStringLiteral must not be used here.
CODE
write src/sdk/tksv.cpp <<'CODE'
#include "tksv_device.h"

#include <glib.h>
#include <thread>

#include "base/Text.h"
#include "EventService.h"
#include "modemmanager/ModemWatch.h"
CODE
write src/sdk/sim/Scenario.cpp <<'CODE'
#include "Scenario.h"

#include "../base/Text.h"
#include "tksv.h"
CODE
write man/good.1 <<'PAGE'
.TH GOOD 1
.SH NAME
good \- a good page
PAGE
write packages.txt <<<'[run]
# bash is everywhere

bash
[check]
need-not-be-installed'
for check in format includes qt_versions man_pages packages; do
    passes "$check"
done

finds format 'src/a.cpp' src/a.cpp <<<'int  a ;'
finds format 'tests/b.h' tests/b.h <<<'int  b ;'

plugin=src/USSDUIPlugin/a.cpp
finds includes 'includes "tksv_device.h"' $plugin <<<'#include "tksv_device.h"'
finds includes 'includes "Languages.h"' $plugin <<<'#include "Languages.h"'
finds includes 'includes "../core/Languages.h"' $plugin <<<'#include "../core/Languages.h"'
finds includes 'includes <glib.h>' $plugin <<<'#include <glib.h>'
finds includes 'includes <QString>' src/sdk/a.cpp <<<'#include <QString>'
finds includes 'includes "Change.h"' src/sdk/a.cpp <<<'#include "Change.h"'
finds includes 'includes "../EventService.h"' src/sdk/base/a.cpp <<<'#include "../EventService.h"'
finds includes 'includes "sim/Scenario.h"' src/sdk/base/a.cpp <<<'#include "sim/Scenario.h"'
finds includes 'includes "EventService.h"' src/sdk/sim/a.cpp <<<'#include "EventService.h"'
finds includes 'includes "../modemmanager/ModemWatch.h"' src/sdk/sim/a.cpp \
    <<<'#include "../modemmanager/ModemWatch.h"'
finds includes 'includes "../EventService.h"' src/sdk/modemmanager/a.cpp \
    <<<'#include "../EventService.h"'
finds includes 'includes "../sim/Scenario.h"' src/sdk/modemmanager/a.cpp \
    <<<'#include "../sim/Scenario.h"'
finds includes 'includes "USSDLogic.h"' src/dashboard/a.cpp <<<'#include "USSDLogic.h"'
finds includes 'includes "windows/Dialog.h"' src/USSDUIPlugin/markup/a.cpp <<<'#include "windows/Dialog.h"'
finds includes 'includes "window/Page.h"' src/dashboard/plugin/a.cpp <<<'#include "window/Page.h"'
finds includes 'includes "../window/Page.h"' src/dashboard/plugin/a.cpp <<<'#include "../window/Page.h"'
finds includes 'includes "Program.h"' src/dashboard/tour/a.cpp <<<'#include "Program.h"'
finds includes 'includes "PluginLog.h"' src/formats/a.cpp <<<'#include "PluginLog.h"'
finds includes 'includes "Languages.h"' src/core/common/A.h <<<'#include "Languages.h"'
finds includes 'includes "tksv.h"' src/core/A.h <<<'#include "tksv.h"'
finds includes 'includes "Languages.h"' src/provisioning/a.cpp <<<'#include "Languages.h"'
finds includes 'includes "Languages.h"' src/files/a.cpp <<<'#include "Languages.h"'
finds includes 'includes <vector>' src/sdk/tksv.h <<<'#include <vector>'

finds qt_versions 'a.cpp:1:#if QT_VERSION' src/dashboard/a.cpp <<<'#if QT_VERSION > 0'
finds qt_versions 'a.cpp:2:.*QStringLiteral' $plugin <<<'
auto a = QStringLiteral("a");'
finds qt_versions 'QElapsedTimer' src/core/a.cpp <<<'QElapsedTimer timer;'
finds qt_versions 'setPlaceholderText' src/formats/a.cpp <<<'edit->setPlaceholderText(a);'
finds qt_versions 'QSaveFile' src/files/a.cpp <<<'QSaveFile file;'
finds qt_versions 'SkipEmptyParts' src/core/a.cpp <<<'text.split(a, QString::SkipEmptyParts);'
finds qt_versions 'by function' $plugin <<<'connect(a, &A::changed,
        this, &B::change);'
finds qt_versions 'by function' src/core/a.cpp <<<'QTimer::singleShot(0, this, [=] { f(); });'

qt4=$(mktemp -d) || exit 2
trap 'rm -rf "$tree" "$qt4"' EXIT
mkdir "$qt4/QtCore"
printf '%s\n' '#define QT_VERSION_STR   "4.8.7"' >"$qt4/QtCore/qglobal.h"
export USSD_QT4_INCLUDE=$qt4
finds qt4_headers 'src/core/a.h: .*QNotInQt4' src/core/a.h <<<'#include <QNotInQt4>'
finds qt4_headers 'src/files/a.cpp: .*nothing' src/files/a.cpp <<<'int a = nothing;'
rm "$qt4/QtCore/qglobal.h"
finds qt4_headers 'no QtCore/qglobal.h of Qt 4' src/core/a.h </dev/null
unset USSD_QT4_INCLUDE

finds man_pages 'warning' man/bad.1 <<<'.TH BAD 1
.SH NAME
bad \- a page
.nonsense'
finds man_pages 'no NAME' man/bad.1 <<<'.TH BAD 1
.SH DESCRIPTION
a page'

finds behaviour 'no test thatIsNotThere' docs/behaviour.md <<<'| a | b | c | `thatIsNotThere` |'
finds behaviour 'stands 0 times in USSDLogic.h' tests/mutants/a.faults <<<'file USSDLogic.h
fault no such line
-int a;
+'

finds documents 'does not name the label odd' tests/odd/CMakeLists.txt <<<'ussd_add_test(a LABELS odd)'
finds documents 'does not name the check odd' tests/checks/odd.sh </dev/null
finds documents 'does not name the preset odd' CMakePresets.json <<<'"name": "odd"'

finds packages 'no-such-package-at-all is not' packages.txt <<<'[test]
no-such-package-at-all'
finds packages 'bash stands there twice' packages.txt <<<'[run]
bash
[test]
bash'
finds packages 'bash stands in no section' packages.txt <<<'bash'
finds packages '\[rum\] is no section' packages.txt <<<'[rum]'
# Tests that translations.sh adds missing keys, removes unused keys, and creates the file of a new
# language.
fresh_tree
write translations/en.ts <<'TS'
<TS version="2.1" language="en">
<context>
    <name>USSDUIPlugin</name>
    <!-- a comment -->
    <message>
        <source>IDS_A</source>
        <translation>Text %1</translation>
    </message>
    <message>
        <source>IDS_B</source>
        <translation>B</translation>
    </message>
</context>
</TS>
TS
write translations/de.ts <<'TS'
<TS version="2.1" language="de">
<context>
    <name>USSDUIPlugin</name>
    <message>
        <source>IDS_B</source>
        <translation>be</translation>
    </message>
    <message>
        <source>IDS_C</source>
        <translation>ce</translation>
    </message>
</context>
</TS>
TS
write plugins/a.xml <<<'<langID>IDS_D</langID>'
write src/core/a.cpp <<<'text("IDS_A");'

# translations STATUS ARGUMENT...: runs the script, stores its output, and requires this exit status.
translations() {
    local status=$1
    shift
    said=$(TRANSLATIONS_ROOT=$tree bash "$source_tree/scripts/translations.sh" "$@" 2>&1)
    local got=$?
    [ "$got" -eq "$status" ] && return
    printf 'translations.sh %s: status %s; it says:\n%s\n' "$*" "$got" "$said"
    wrong=1
}

# translations_have PATTERN: requires that the output of the script or the German language file
# contains a match of the pattern.
translations_have() {
    { printf '%s\n' "$said" && tr '\n' ' ' <"$tree/translations/de.ts"; } | grep -qE "$1" && return
    printf 'translations.sh: no "%s" in:\n%s\n' "$1" "$said"
    wrong=1
}

translations 1 --check
translations_have 'translations/de.ts is not up to date'
translations_have '<source>IDS_C'
translations 1
translations_have '^de: USSDUIPlugin IDS_A is missing'
translations_have '^de: USSDUIPlugin IDS_C is not in English'
translations_have '^en: USSDUIPlugin IDS_D is used and has no text'
translations_have 'language="de".*<!-- a comment -->.*"unfinished">Text %1<.*<translation>be<'
rm "$tree/plugins/a.xml"
sed -i 's/ type="unfinished">Text/>Wort/' "$tree/translations/de.ts"
translations 0
translations 0 --check
translations 1 --new pt_BR
translations_have '^pt_BR: USSDUIPlugin IDS_B is missing'
translations 2 --new de
translations 2 --new Deutsch
exit "$wrong"

#!/usr/bin/env bash
# Checks that the plug-in and its libraries can be built with Qt 4.6 to Qt 6 from the same source:
# only one header may query the Qt version, and the code must not use any API that a supported
# version lacks.
. "$(dirname "$0")/common.sh"

shared="src/USSDUIPlugin src/formats src/files src/core examples/host"

# APIs that Qt 4.6 lacks or Qt 5.15 deprecates.
missing_in_qt4='QStringLiteral|QByteArrayLiteral|QSaveFile|QStandardPaths|QCommandLine[A-Za-z]+'
missing_in_qt4+='|QJson[A-Za-z]+|QRegularExpression[A-Za-z]*|QElapsedTimer|QDeadlineTimer'
missing_in_qt4+='|QTemporaryDir|QLoggingCategory|qInstallMessageHandler|QStringView|QScopeGuard'
missing_in_qt4+='|QOverload|qOverload|qAsConst|Q_ENUM|Q_NAMESPACE|Q_GADGET_EXPORT|Q_DECL_OVERRIDE'
missing_in_qt4+='|Q_NULLPTR|QGuiApplication|QScreen|QWindow|QCollator|QMimeDatabase|QFINDTESTDATA'
missing_in_qt4+='|QTRY_[A-Z]+|qInfo|qEnvironmentVariable[A-Za-z]*|[a-z]*[pP]laceholderText'
missing_in_qt4+='|toHtmlEscaped|setSectionResizeMode|horizontalAdvance|chopped|asprintf'
missing_in_qt4+='|QMutexLocker<|setTimerType'
deprecated='qSort|qStableSort|SkipEmptyParts|toSet|qInstallMsgHandler'

# Function pointers that are passed to connect() and similar functions instead of names, even in a
# statement that spans several lines.
by_function='(?s)\bconnect\((?:[^;]*?),\s*&\w+::\w+'
with_lambda='(?s)\b(?:connect|singleShot|invokeMethod)\((?:[^;]*?)\[[&=\w, ]*\]\s*(?:\(|\{)'

# Calls that pass a document to a parser. Only ForwardXml::start() may contain them, because it
# rejects documents that declare entities. Qt 4 would expand these entities without a limit.
parser_input='QXmlStreamReader [A-Za-z_]+[({]|\.(setDevice|addData)\('

algorithm='\bstd::((stable_)?sort|find(_if)?|(any|all|none)_of|(lower|upper)_bound|unique|reverse|count(_if)?)\('

# Headers that declare the Qt namespace in every version of Qt.
declares_qt='#include (<Qt>|<Q[A-Za-z]*(Widget|Dialog|Edit|Label|Button|Frame|Application|Delegate)>|")'

while IFS= read -r hit; do
    complain "$hit"
done < <(cpp_files src | grep -v '^src/compat/QtCompat\.h$' | xargs -r grep -nH QT_VERSION)

# Word splitting of the folder list is intended.
# shellcheck disable=SC2086
while IFS= read -r file; do
    code=$(without_comments "$file")
    while IFS= read -r hit; do
        complain "$file:$hit"
    done < <(printf '%s\n' "$code" | grep -nwE "$missing_in_qt4|$deprecated")
    while IFS= read -r hit; do
        [ "$file" = src/formats/ForwardXml.cpp ] || complain "$file: not by ForwardXml::start(): $hit"
    done < <(printf '%s\n' "$code" | grep -nE "$parser_input")
    # The headers of Qt 5 include <algorithm>; those of Qt 4 do not.
    if grep -qE "$algorithm" <<<"$code" && ! grep -qE '#include <algorithm>' <<<"$code"; then
        complain "$file: calls an algorithm without <algorithm>"
    fi
    case $file in
    *.h)
        # In Qt 4, only headers of widgets declare the Qt namespace.
        if grep -qE '\<Qt::' <<<"$code" && ! grep -qE "$declares_qt" <<<"$code"; then
            complain "$file: uses Qt:: without <Qt> or the header of a widget"
        fi
        ;;
    esac
    for pattern in "$by_function" "$with_lambda"; do
        hit=$(printf '%s\n' "$code" | grep -Pzo "$pattern" | tr '\0\n' '  ')
        [ -z "$hit" ] || complain "$file: by function: $hit"
    done
done < <(cpp_files $shared)
finish

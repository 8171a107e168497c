#!/usr/bin/env bash
# check_completions.sh PROGRAM ROOT: checks that the man page and the completion files contain all
# options and commands of the program, and that bash completion suggests the correct words.
set -u
program=$1
root=$2
faults=0

complain() {
    printf '%s\n' "$*"
    faults=1
}

# ---- every option and command is in the man page and in the completions

options=$("$program" --help | grep -oE -- '^ +(-[a-z], )?--[a-z-]+' | grep -oE -- '--[a-z-]+')
commands=$("$program" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z]\{1,\}\) .*/\1/p' | sort -u)
[ "$(wc -w <<<"$options")" -ge 10 ] || complain "the options of --help were not recognised: $options"
[ "$(wc -w <<<"$commands")" -eq 7 ] || complain "the commands of --help were not recognised: $commands"
page=$(sed 's/\\-/-/g; s/\\f.//g' "$root/man/ussd.1")
for word in $options $commands; do
    grep -qE -- "(^|[^a-z-])$word([^a-z-]|\$)" <<<"$page" || complain "man/ussd.1 lacks $word"
    for file in ussd.bash _ussd; do
        grep -qE -- "(^|[^a-z-])$word([^a-z-]|\$)" "$root/completions/$file" ||
            complain "completions/$file lacks $word"
    done
done

# ---- the completion for bash

. "$root/completions/ussd.bash"
ussd() {
    if [ "$*" = 'run --list' ]; then
        printf 'Balance\t*100#\t00101\n'
        printf '%s\t*123# 1\t00101\n' 'My $(complain a name ran a command >&3)'
        return
    fi
    [ "$*" = modems ] || return
    printf '350000000000017\tExample One\tregistered\n'
    printf '%s\tHostile\tregistered\n' '$(complain a modem ran a command >&3)'
}

# proposes WORDS EXPECTED: checks which words are suggested for the last word of the command line
# WORDS.
proposes() {
    read -ra COMP_WORDS <<<"$1"
    [ "${1% }" = "$1" ] || COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    _ussd
    [ "${COMPREPLY[*]}" = "$2" ] || complain "'$1' is completed to '${COMPREPLY[*]}', not '$2'"
}

proposes 'ussd s' 'send status'
proposes 'ussd ' 'send run chat status modems watch cancel'
proposes 'ussd send --en' '--enable --end-foreign-session'
proposes 'ussd watch --en' '--enable'
proposes 'ussd modems --e' ''
proposes 'ussd chat --j' ''
proposes 'ussd --json c' 'chat cancel'
proposes 'ussd --modem 3' '350000000000017'
proposes 'ussd --modem = 35' '350000000000017'
proposes 'ussd --modem 9' ''

# The modem identifier is untrusted input from the modem, so the shell must not expand it.
exec 3>&1
proposes 'ussd --modem ' '350000000000017 \$\(complain\ a\ modem\ ran\ a\ command\ \>\&3\)'
proposes 'ussd run B' 'Balance'
proposes 'ussd run ' 'Balance My\ \$\(complain\ a\ name\ ran\ a\ command\ \>\&3\)'
proposes 'ussd run --l' '--list'
proposes 'ussd send --l' ''
proposes 'ussd send *100# ' ''
cd "$root" || exit 2
proposes 'ussd --scenario scenarios/po' 'scenarios/postpaid.scenario'
exit $faults

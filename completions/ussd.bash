# Completion of ussd(1) for bash.

# Prints the ussd command on the command line, such as "send", if there is one.
_ussd_command() {
    local word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $word in
        send | run | chat | status | modems | watch | cancel)
            printf '%s' "$word"
            return
            ;;
        esac
    done
}

# Completes the identifier of a modem. The identifier comes from the modem and may contain any
# character. "compgen -W" would therefore expand it, and even run commands that it contains.
_ussd_modems() {
    local id
    while read -r id; do
        [[ $id == "$1"* ]] && COMPREPLY+=("$(printf '%q' "$id")")
    done < <(ussd modems 2>/dev/null | cut -f1)
}

# Completes the name of a favourite after "run".
_ussd_favourites() {
    local name
    while read -r name; do
        [[ $name == "$1"* ]] && COMPREPLY+=("$(printf '%q' "$name")")
    done < <(ussd run --list 2>/dev/null | cut -f1)
}

_ussd() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} options
    # bash treats "=" as a separate word.
    if [[ $current == = ]]; then
        current=
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    COMPREPLY=()
    case $previous in
    -m | --modem)
        _ussd_modems "$current"
        return
        ;;
    --scenario)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
        ;;
    -t | --timeout)
        return
        ;;
    esac
    if [[ $current == -* ]]; then
        options='--modem --timeout --quiet --demo --scenario --help --version'
        case $(_ussd_command) in
        run) options+=' --enable --end-foreign-session --json --list' ;;
        send) options+=' --enable --end-foreign-session --json' ;;
        chat) options+=' --enable --end-foreign-session' ;;
        watch) options+=' --enable --json' ;;
        status | modems | cancel) options+=' --json' ;;
        *) options+=' --enable --end-foreign-session --json --list' ;;
        esac
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    elif [[ -z $(_ussd_command) ]]; then
        mapfile -t COMPREPLY < <(compgen -W 'send run chat status modems watch cancel' -- "$current")
    elif [[ $previous == run ]]; then
        _ussd_favourites "$current"
    fi
}

complete -F _ussd ussd

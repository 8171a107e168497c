#!/usr/bin/env bash
# Updates the language files, and reports missing texts and unknown keys:
#   scripts/translations.sh [--check] [--new LANGUAGE]
# translations/en.ts determines the keys, their order and the comments. If a key is missing in another
# language, it is added with the English text and marked as unfinished. Keys that en.ts does not contain
# are removed. With --check, no file is changed. --new creates a language file in which every text is
# unfinished. The exit status is 1 if a text is missing or a file is not up to date.
set -eu
root=${TRANSLATIONS_ROOT:-$(cd "$(dirname "$0")/.." && pwd)}
cd "$root"

check=0
new=
while [ $# -gt 0 ]; do
    case $1 in
    --check) check=1 ;;
    --new)
        new=${2:-}
        if ! [[ $new =~ ^[a-z]{2}(_[A-Z]{2})?$ ]] || [ -e "translations/$new.ts" ]; then
            echo "--new wants a language without a file, such as id or pt_BR" >&2
            exit 2
        fi
        shift
        ;;
    *)
        sed -n '2,8s/^# \{0,1\}//p' "$0" >&2
        exit 2
        ;;
    esac
    shift
done
[ -z "$new" ] || printf '<TS language="%s">\n</TS>\n' "$new" >"translations/$new.ts"

# Prints the keys that the code and the files of the plug-in use, one per line, each after its
# context, for example "Dashboard PIN_CAPTION".
used_keys() {
    grep -rhoE --include='*.cpp' --include='*.h' '"(IDS|IDC|USSD_CODE)_[A-Z0-9_]+"' src |
        tr -d '"' | sed 's/^/USSDUIPlugin /'
    grep -rhoE --include='*.xml' '(IDS|IDC)_[A-Z0-9_]+' plugins | sed 's/^/USSDUIPlugin /'
    grep -rhozE --include='*.cpp' --include='*.h' 'dashboardText\(\s*"[A-Z0-9_]+"' src |
        tr '\0\n' '\n ' | sed 's/.*"\(.*\)"/Dashboard \1/'
}

used_keys | sort -u | CHECK=$check perl -e '
    use strict;
    my $wrong = 0;
    sub content { open(my $file, "<", $_[0]) or die "$_[0]: $!\n"; local $/; return <$file>; }
    sub report { print "$_[0]\n"; $wrong = 1; }

    # Calls $function for each <message> element in $text, with the context, the key and the
    # element. Replaces the element with the result.
    sub each_message {
        my ($text, $function) = @_;
        my $context = "";
        $text =~ s{<name>(.*?)</name>|([ \t]*<message\b.*?</message>\n?)}{
            my ($name, $message) = ($1, $2);
            if (defined $name) { $context = $name; "<name>$name</name>" }
            else {
                my ($key) = $message =~ m{<source>(.*?)</source>}s;
                $function->($context, $key, $message);
            }
        }gse;
        return $text;
    }

    sub translations_of {
        my %found;
        each_message($_[0], sub {
            my ($context, $key, $message) = @_;
            ($found{"$context $key"}) = $message =~ m{(<translation\b.*?</translation>)}s;
            return "";
        });
        return %found;
    }

    my $english = content("translations/en.ts");
    my %original = translations_of($english);
    while (my $key = <STDIN>) {
        chomp $key;
        report("en: $key is used and has no text") unless exists $original{$key};
    }
    for my $file (sort glob("translations/*.ts")) {
        my ($language) = $file =~ m{/(\w+)\.ts$};
        my $before = content($file);
        my %own = translations_of($before);
        my $after = each_message($english, sub {
            my ($context, $key, $message) = @_;
            my $text = $own{"$context $key"};
            if (!defined $text) {
                ($text) = $message =~ m{<translation>(.*?)</translation>}s;
                $text = "<translation type=\"unfinished\">$text</translation>";
            }
            report("$language: $context $key is missing") if $text =~ m{^<translation type="unfinished"};
            $message =~ s{<translation\b.*?</translation>}{$text}s;
            return $message;
        });
        $after =~ s{(<TS\b[^>]*language=")[^"]*"}{$1$language"};
        for my $key (sort keys %own) {
            report("$language: $key is not in English") unless exists $original{$key};
        }
        next if $after eq $before;
        if ($ENV{CHECK}) { report("$file is not up to date; run scripts/translations.sh"); next; }
        open(my $output, ">", $file) or die "$file: $!\n";
        print $output $after;
        close($output) or die "$file: $!\n";
    }
    exit($wrong);'

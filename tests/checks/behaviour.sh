#!/usr/bin/env bash
# Checks that the tests in the last column of the tables in docs/behaviour.md exist, and that the
# faults in tests/mutants replace existing code.
. "$(dirname "$0")/common.sh"

if [ -f docs/behaviour.md ]; then
    while read -r name; do
        grep -rqw --include='*.cpp' --include='CMakeLists.txt' -- "$name" tests ||
            complain "docs/behaviour.md: there is no test $name"
    done < <(sed -n 's/^|.*| \(`.*`\) |$/\1/p' docs/behaviour.md | grep -o '`[^`]*`' | tr -d '`')
fi

for list in tests/mutants/*.faults; do
    [ -f "$list" ] || continue
    while read -r misfit; do
        complain "$list: $misfit"
    done < <(perl -e '
        my ($file, $name, $old, $code) = ("", "", "", "");
        my $check = sub {
            my $count = () = $code =~ /\Q$old\E/g;
            print "\"$name\" stands $count times in $file\n" if $name ne "" && $count != 1;
            $name = "";
        };
        while (<>) {
            if (/^file (.*)$/) {
                $file = $1;
                my ($place) = grep { -f } glob("src/{formats,USSDUIPlugin,USSDUIPlugin/*}/$file");
                open(my $source, "<", $place // "") or print "there is no $file\n";
                $code = do { local $/; <$source> };
            } elsif (/^fault (.*)$/) { ($name, $old) = ($1, ""); }
            elsif (/^-(.*)$/) { $old .= ($old eq "" ? "" : "\n") . $1; }
            elsif (/^$/) { $check->(); }
        }
        $check->();' "$list")
done
finish

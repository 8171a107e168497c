#!/usr/bin/env bash
# Checks the architecture diagram. For each #include directive between two folders of src,
# docs/architecture.dot must contain an arrow. The diagram must not contain any other arrows or any
# cycles. docs/pictures/architecture.svg must have been generated from docs/architecture.dot.
. "$(dirname "$0")/common.sh"

# Prints a line "FROM TO" for each pair of folders in src that are connected by an #include
# directive. The public headers of the device SDK count as a folder named "tksv.h".
included_folders() {
    local file name
    cpp_files src | while IFS= read -r file; do
        sed -nE 's/^[[:space:]]*#[[:space:]]*include[[:space:]]*"([^"]+)".*/\1/p' "$file" |
            while IFS= read -r name; do
                printf '%s %s\n' "$file" "$name"
            done
    done | perl -e '
        sub folder { $_[0] =~ m{^src/sdk/tksv(_device)?\.h$} ? "tksv.h" : $_[0] =~ m{^src/(.*)/} ? $1 : "" }
        my %place; # maps each suffix of a header path to the header
        for my $header (split /\n/, $ENV{headers}) {
            my @parts = split m{/}, $header;
            $place{join "/", @parts[$_ .. $#parts]} = $header for 0 .. $#parts;
        }
        while (<STDIN>) {
            my ($file, $name) = split;
            my $from = folder($file);
            my $beside = $file =~ s{[^/]+$}{$name}r;
            my $header = -f $beside ? $beside : $place{$name} // next;
            1 while $header =~ s{[^/]+/\.\./}{};
            my $to = folder($header);
            print "$from $to\n" if $from ne $to;
        }' | sort -u
}

# Prints the pairs of folders that the diagram connects.
drawn_folders() { sed -nE 's/^ *"([^"]+)" -> "([^"]+)".*/\1 \2/p' docs/architecture.dot | sort -u; }

headers=$(cpp_files src | grep '\.h$')
export headers
included=$(included_folders)
drawn=$(drawn_folders)
while IFS= read -r arrow; do
    [ -z "$arrow" ] || complain "docs/architecture.dot: no arrow for the include of ${arrow/ / in }"
done < <(comm -23 <(printf '%s\n' "$included") <(printf '%s\n' "$drawn"))
while IFS= read -r arrow; do
    [ -z "$arrow" ] || complain "docs/architecture.dot: no include makes the arrow $arrow"
done < <(comm -13 <(printf '%s\n' "$included") <(printf '%s\n' "$drawn"))
while IFS= read -r line; do
    complain "circle of folders: $line"
done < <(printf '%s\n' "$included" | tsort 2>&1 >/dev/null | grep -v 'input contains a loop')
grep -qF "$(sha1sum <docs/architecture.dot | cut -d' ' -f1)" docs/pictures/architecture.svg ||
    complain "docs/pictures/architecture.svg was not drawn from docs/architecture.dot: run scripts/architecture.sh"
finish

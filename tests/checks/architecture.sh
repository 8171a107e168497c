#!/usr/bin/env bash
# The picture of the folders: docs/architecture.dot has each arrow between two folders of src that an
# #include makes, and no other; the arrows form no circle; docs/pictures/architecture.svg was drawn
# from it.
. "$(dirname "$0")/common.sh"

# One line for each pair of folders: "FROM TO", below src. The public headers of the device SDK, which
# lie beside its code, count as a folder of their own, "tksv.h".
included_folders() {
    local file name
    cpp_files src | while IFS= read -r file; do
        sed -nE 's/^[[:space:]]*#[[:space:]]*include[[:space:]]*"([^"]+)".*/\1/p' "$file" |
            while IFS= read -r name; do
                printf '%s %s\n' "$file" "$name"
            done
    done | perl -e '
        sub folder { $_[0] =~ m{^src/sdk/tksv(_device)?\.h$} ? "tksv.h" : $_[0] =~ m{^src/(.*)/} ? $1 : "" }
        my %place; # all headers by the end of their path
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

# The same of the picture.
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

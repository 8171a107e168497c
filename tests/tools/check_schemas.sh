#!/usr/bin/env bash
# Tests that the schemas for XML editors are those that the program generates, that they accept all
# files that are shipped or created, and that they reject mistakes that "ussd-config check" reports.
#   check_schemas.sh PROGRAM SOURCE_TREE
set -u
program=$1
root=$2
work=$(mktemp -d) || exit 2
trap 'rm -rf "$work"' EXIT
wrong=0

complain() {
    printf '%s\n' "$*" >&2
    wrong=1
}

accepts() {
    xmllint --noout --relaxng "$root/schemas/ussd-$1.rng" "$2" >"$work/said" 2>&1
}

# good KIND FILE: requires that the schema accepts the file.
good() {
    accepts "$1" "$2" || complain "the schema $1 rejects $2: $(cat "$work/said")"
}

# bad KIND EXPRESSION: changes the shipped file with the Perl expression. Requires that both
# "ussd-config check" and the schema reject the changed file.
bad() {
    local file=$root/plugins/USSDUIPlugin/USSDPluginConfig.xml
    [ "$1" = profiles ] && file=$root/plugins/USSDUIPlugin/ussdsysprofile.xml
    perl -0pe "$2" "$file" >"$work/bad.xml"
    cmp -s "$file" "$work/bad.xml" && complain "$2 changes nothing"
    "$program" check "$work/bad.xml" >/dev/null
    [ $? -eq 1 ] || complain "the check does not find: $2"
    accepts "$1" "$work/bad.xml"
    [ $? -eq 3 ] || complain "the schema $1 does not find: $2: $(cat "$work/said")"
}

for kind in configuration layout profiles; do
    "$program" schema "$kind" | cmp - "$root/schemas/ussd-$kind.rng" ||
        complain "schemas/ussd-$kind.rng is old: ussd-config schema $kind >schemas/ussd-$kind.rng"
done

for folder in "$root/plugins/USSDUIPlugin" "$root/plugins/plain"; do
    good configuration "$folder/USSDPluginConfig.xml"
    good profiles "$folder/ussdsysprofile.xml"
done
number=0
for operator in O2:de Orange:fr Reliance:in Vodacom:za TIM:br; do
    number=$((number + 1))
    "$program" new "$work/$number" --operator "${operator%:*}" --country "${operator#*:}" \
        >/dev/null || complain "there is no $operator"
    good configuration "$work/$number/plugins/USSDUIPlugin/USSDPluginConfig.xml"
    good profiles "$work/$number/plugins/USSDUIPlugin/ussdsysprofile.xml"
done
{ echo '<any>' && perl -0ne 'print $1 if /(<SMSUSSD>.*<\/SMSUSSD>)/s' \
    "$root/plugins/USSDUIPlugin/USSDPluginConfig.xml" && echo '</any>'; } >"$work/layout.xml"
good layout "$work/layout.xml"
perl -0ne 'print $1 if /(<SMSUSSD>.*<\/SMSUSSD>)/s' \
    "$root/plugins/USSDUIPlugin/USSDPluginConfig.xml" >"$work/layout.xml"
good layout "$work/layout.xml"

# shellcheck disable=SC2016 # Perl's variables
while IFS= read -r expression; do
    bad configuration "$expression"
done <<'EXPRESSIONS'
s/PrePostDiffer value="true"/PrePostDiffer value="TRUE"/
s/(item name="Charge" )value="true" /$1/
s/<length>16</<length>16x</
s/<yHeight>200</<yHeight>20.5</
s/<yHeight>200</<yHeight>0</
s/<yHeight>200</<yHeight>2147483640</
s/<UpdateButton>1/<UpdateButton>/
s/pos="3"/pos="third"/
s/pos="3"/poss="3"/
s/pos="3"/pos="3" note="a"/
s/red="0" green="51"/red="256" green="51"/
s/<(\/?)recevie>/<$1receive>/g
s/<(\/?)Postpaid>/<$1postpaid>/g
s/<(\/?)minlenth>12/<minlength>12/; s/12<\/minlenth>/12<\/minlength>/
s/item name="Balance"/item name="balance"/
s/<LimitText>0-9<\/LimitText>//
s/(<length>16<\/length>)\s*(<minlenth>12<\/minlenth>)/$2$1/
s/(<send>.*?<\/send>)\s*(<recevie>.*?<\/recevie>)/$2$1/s
s/<item name="MSISDN".*?<\/item>//s
s/<clearHistory[^>]*>//
s/<SMSUSSD>.*<\/SMSUSSD>//s
s/imsi="00101"/imsi="001 01"/
s/ussd="Prepaid\/Commonpaid/ussd="prepaid\/Commonpaid/
s/ussd="Postpaid\/Commonpaid\/Advanced"/ussd=""/
s/control type="ussd"/control type="USSD"/
s/MainSize width="640"/MainSize width="wide"/
s/<control posx="285" posy="140" width="340" height="210"\/>//
s/<\/autoUSSD>/<\/autoUSSD><more><item name="a"\/><\/more>/
s/<send>/<Prepaid><\/Prepaid><send>/
s/<command>\*110#/<command>*110/
s/<command>\*100#/<command>*100*%s#/
s/<command>\*110#/"<command>*" . "1" x 95 . "#"/e
EXPRESSIONS
# shellcheck disable=SC2016
while IFS= read -r expression; do
    bad profiles "$expression"
done <<'EXPRESSIONS'
s/<readonly>true/<readonly>yes/
s/<showButton>true<\/showButton>//
s/<langID>[^<]*<\/langID>\s*(<desLangID>[^<]*<\/desLangID>)/$1/
s/(<name>[^<]*<\/name>)\s*(<value>[^<]*<\/value>)/$2$1/
s/<value>\*100#/<value>100/
s/<(\/?)desLangID>/<$1deslangID>/g
EXPRESSIONS
exit "$wrong"

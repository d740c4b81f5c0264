#!/usr/bin/env bash
# Runs zeltime, zelcoord and zelrecord on fixed inputs and compares their
# standard output, standard error and exit status with the expected ones.
# The expected values were worked out apart from the tools: times from the
# calendar arithmetic of the GPS and BeiDou epochs, coordinates from an
# iterated WGS 84 conversion, images from their field offsets.
#
#   check_tools.sh DIR     DIR holds the three built or installed tools
set -u
dir=${1:?usage: check_tools.sh DIR-OF-THE-TOOLS}
ZELTIME=$dir/zeltime
ZELCOORD=$dir/zelcoord
ZELRECORD=$dir/zelrecord
cd "$(dirname "$0")" || exit 1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
passed=0
failed=0

# check NAME STATUS STDOUT STDERR STDIN COMMAND...: exact comparison.
check() {
    local name=$1 status=$2 out=$3 err=$4 in=$5
    shift 5
    printf '%s' "$in" | "$@" >"$work/out" 2>"$work/err"
    local got=$?
    printf '%s' "$out" >"$work/out.expected"
    printf '%s' "$err" >"$work/err.expected"
    if [ "$got" = "$status" ] && cmp -s "$work/out" "$work/out.expected" && cmp -s "$work/err" "$work/err.expected"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAILED: $name (status $got, expected $status)"
        diff "$work/out.expected" "$work/out" | sed 's/^/  stdout: /'
        diff "$work/err.expected" "$work/err" | sed 's/^/  stderr: /'
    fi
}

# check_match NAME STATUS STDOUT-PATTERN STDERR-PATTERN STDIN COMMAND...:
# for output that depends on the clock or on a source line; grep -E
# patterns that must match some line, "" for an empty stream.
check_match() {
    local name=$1 status=$2 out=$3 err=$4 in=$5
    shift 5
    printf '%s' "$in" | "$@" >"$work/out" 2>"$work/err"
    local got=$? ok=1
    [ "$got" = "$status" ] || ok=0
    if [ -z "$out" ]; then [ -s "$work/out" ] && ok=0; else grep -Eq "$out" "$work/out" || ok=0; fi
    if [ -z "$err" ]; then [ -s "$work/err" ] && ok=0; else grep -Eq "$err" "$work/err" || ok=0; fi
    if [ $ok = 1 ]; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAILED: $name (status $got, expected $status)"
        sed 's/^/  stdout: /' "$work/out"
        sed 's/^/  stderr: /' "$work/err"
    fi
}

# ---------------------------------------------------------------- zeltime
# GPS week 2345, 302400.125 s: 1980-01-06 + 16415 days + 3.5 days is
# 2024-12-18 12:00:00.125 (day 353), MJD 60662.5 + 0.125 / 86400; BeiDou
# time is 14 s earlier from 2006-01-01 (GPS week 1356): week 989; UTC is
# 18 s behind GPS time since 2017.
table_2345=$'GPS week, seconds:        2345 302400.125000
GPS week, milliseconds:   2345 302400125
BeiDou week, seconds:     989 302386.125000
MJD:                      60662.500001447
Julian date:              2460663.000001447
Calendar:                 2024-12-18 12:00:00.125000
Year, day, seconds:       2024 353 43200.125000
UTC:                      2024-12-18 11:59:42.125000
GPS - UTC:                18 s
'
check "zeltime gps" 0 "$table_2345" "" "" "$ZELTIME" gps 2345 302400.125
check "zeltime gpsms" 0 "$table_2345" "" "" "$ZELTIME" gpsms 2345 302400125
check "zeltime bds" 0 "$table_2345" "" "" "$ZELTIME" bds 989 302386.125
check "zeltime mjd" 0 "$table_2345" "" "" "$ZELTIME" mjd 60662.500001446759
check "zeltime date" 0 "$table_2345" "" "" "$ZELTIME" date 2024-12-18 12:00:00.125
check "zeltime date T" 0 "$table_2345" "" "" "$ZELTIME" date 2024-12-18T12:00:00.125
check "zeltime doy" 0 "$table_2345" "" "" "$ZELTIME" doy 2024 353 43200.125
check "zeltime utc" 0 "$table_2345" "" "" "$ZELTIME" utc 2024-12-18 11:59:42.125
# 2000-01-01 12:00 GPS time: 7300 days after the GPS epoch, week 1042
# day 6; before BeiDou week 0; 13 leap seconds then.
check "zeltime jd 2000" 0 $'GPS week, seconds:        1042 561600.000000
GPS week, milliseconds:   1042 561600000
BeiDou week, seconds:     - -
MJD:                      51544.500000000
Julian date:              2451545.000000000
Calendar:                 2000-01-01 12:00:00.000000
Year, day, seconds:       2000 001 43200.000000
UTC:                      2000-01-01 11:59:47.000000
GPS - UTC:                13 s
' "" "" "$ZELTIME" jd 2451545.0
# The leap second at the end of 2016: GPS 2017-01-01 00:00:17.5 is UTC
# 2016-12-31 23:59:60.5, and back.
check "zeltime into a leap second" 0 $'1930 17.500000|2016-12-31 23:59:60.500000|17\n' "" "" \
    "$ZELTIME" --format '%G %g|%U|%L' date 2017-01-01 00:00:17.5
check "zeltime from a leap second" 0 $'1930 17.500000|574 3.500000\n' "" "" \
    "$ZELTIME" --format '%G %g|%E %e' utc 2016-12-31T23:59:60.5Z
check "zeltime after a leap second" 0 $'2017-01-01 00:00:00.000|18\n' "" "" \
    "$ZELTIME" -p 3 --format '%U|%L' gps 1930 18
check "zeltime no leap second" 1 "" $'ERROR: there is no leap second at that time in the leap-second table\n' "" \
    "$ZELTIME" utc 2017-12-31 23:59:60
# -p 0 rounds the instant to whole seconds, and every form shows that instant.
check "zeltime format" 0 $'2024-12-18T12:00:00Z 60662.500000000%\n' "" "" \
    "$ZELTIME" -p 0 --format '%Y-%m-%dT%H:%M:%SZ %Q%%' gps 2345 302400.125
check "zeltime precision" 0 $'2345 302400.1 43200.1\n' "" "" "$ZELTIME" -p 1 --format '%G %g %s' gps 2345 302400.125
# Rounding to the shown digits carries into the next week.
check "zeltime carry" 0 $'1001 0.000 1001 0\n' "" "" "$ZELTIME" -p 3 --format '%G %g %I %i' gpsms 1000 604799999.9996
check "zeltime leap list" 0 $'2026-07-01 11:59:41.000000 19\n' "" "" \
    "$ZELTIME" --leap-seconds leap-seconds-future.list --format '%U %L' date 2026-07-01 12:00
check "zeltime leap list before" 0 $'2026-06-30 11:59:42.000000 18\n' "" "" \
    "$ZELTIME" --leap-seconds leap-seconds-future.list --format '%U %L' date 2026-06-30 12:00
check "zeltime built-in table" 0 $'2026-07-01 11:59:42.000000 18\n' "" "" \
    "$ZELTIME" --format '%U %L' date 2026-07-01 12:00
check "zeltime leap list refused" 1 "" \
    $'ERROR: leap-seconds file \'leap-seconds-gap.list\': the leap seconds are not in order or do not step by one second\n' \
    "" "$ZELTIME" --leap-seconds leap-seconds-gap.list mjd 50000
check "zeltime leap list bad line" 1 "" $'ERROR: leap-seconds-bad.list:2: not a line \'NTP-seconds TAI-UTC\'\n' "" \
    "$ZELTIME" --leap-seconds leap-seconds-bad.list mjd 50000
check "zeltime leap list missing" 1 "" $'ERROR: cannot open leap-seconds file \'no-such.list\'\n' "" \
    "$ZELTIME" --leap-seconds no-such.list mjd 50000
check_match "zeltime now" 0 '^UTC: +20[0-9][0-9]-[01][0-9]-[0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9]\.[0-9]{6}$' "" "" \
    "$ZELTIME" --now
check "zeltime seconds out of range" 1 "" $'ERROR: seconds of week \'604800\' are outside 0 to below 604800\n' "" \
    "$ZELTIME" gps 2345 604800
check "zeltime negative seconds" 1 "" $'ERROR: seconds of week \'-1\' are outside 0 to below 604800\n' "" \
    "$ZELTIME" gps 2345 -1
check "zeltime week not a number" 1 "" $'ERROR: week \'23x\' is not a whole number from 0 to 5965\n' "" \
    "$ZELTIME" gps 23x 0
check "zeltime empty value" 1 "" $'ERROR: MJD \'\' is not a number\n' "" "$ZELTIME" mjd ''
check "zeltime bad date" 1 "" $'ERROR: date \'2023-02-29\' is no day from 1980 to 2100\n' "" \
    "$ZELTIME" date 2023-02-29
check "zeltime bad time" 1 "" $'ERROR: time \'24:00\' is not hh:mm[:ss[.fff]] from 00:00 to 23:59\n' "" \
    "$ZELTIME" date 2023-02-28 24:00
check "zeltime before the GPS epoch" 1 "" $'ERROR: the instant is outside 1980-01-06 (GPS week 0) to MJD 86000\n' "" \
    "$ZELTIME" date 1980-01-05
check "zeltime past the range" 1 "" $'ERROR: the instant is outside 1980-01-06 (GPS week 0) to MJD 86000\n' "" \
    "$ZELTIME" gps 5965 86400
usage_time=$'Try \'zeltime --help\'.\n'
check "zeltime no form" 2 "" $'zeltime: give a FORM and its values, or --now\n'"$usage_time" "" "$ZELTIME"
check "zeltime unknown form" 2 "" $'zeltime: unknown form \'gpx\'\n'"$usage_time" "" "$ZELTIME" gpx 1 2
check "zeltime value count" 2 "" $'zeltime: form \'gps\' takes 2 values\n'"$usage_time" "" "$ZELTIME" gps 2345
check "zeltime bad directive" 2 "" $'zeltime: unknown directive %q in --format\n'"$usage_time" "" \
    "$ZELTIME" --format '%q' gps 2345 0
check "zeltime unknown option" 2 "" $'zeltime: unknown option \'--nope\'\n'"$usage_time" "" "$ZELTIME" --nope
check_match "zeltime help" 0 '^Usage: zeltime ' "" "" "$ZELTIME" --help

# --------------------------------------------------------------- zelcoord
# Expected values from an iterated conversion on WGS 84 (a = 6378137 m,
# 1/f = 298.257223563).
check "zelcoord forward" 0 $'0.000000000 0.000000000 0.000
50.797815157 4.359215727 149.666
37.804372201 -122.270802601 -0.001
' "" $'6378137 0 0\n4027894.006 307045.600 4919474.910\n-2694044.411,-4266368.805,3888310.602\n' "$ZELCOORD"
check "zelcoord reverse" 0 $'6378137.000 0.000 0.000\n0.000 4517661.590 4487419.120\n3995325.343 533090.217 4926613.663\n' "" "" \
    "$ZELCOORD" -r --input-string '0 0 0;45 90 100;50.9 7.6 100'
check "zelcoord precision" 0 $'50.7978152 4.3592157 149.7\n' "" "" \
    "$ZELCOORD" -p 1 --input-string '4027894.006 307045.600 4919474.910'
check "zelcoord rotation" 0 $'3995325.343 533090.217 4926613.663 -0.769229259 -0.102637096 0.630675807 -0.132256390 0.991215540 0.000000000 0.625135661 0.083410906 0.776046407\n' \
    "" "" "$ZELCOORD" -r --rotation --input-string '50.9 7.6 100'
check "zelcoord bad lines go on" 1 $'ERROR: line 1: expected 3 values, found 2
ERROR: line 2: \'abc\' is not a finite number
ERROR: line 3: a point on the polar axis has no conversion
ERROR: line 4: expected 3 values, found 0
0.000000000 0.000000000 0.000
ERROR: line 6: \'nan\' is not a finite number
' $'ERROR: 5 of 6 lines did not convert\n' $'1 2\nabc 1 2\n0 0 6356752.3142\n\n6378137 0 0\nnan 0 0\n' "$ZELCOORD"
check "zelcoord reverse out of range" 1 $'ERROR: line 1: latitude 91 is outside -90 to 90 degrees\n' \
    $'ERROR: 1 of 1 lines did not convert\n' "" "$ZELCOORD" -r --input-string '91 0 0'
check "zelcoord empty input" 0 "" "" "" "$ZELCOORD"
usage_coord=$'Try \'zelcoord --help\'.\n'
check "zelcoord bad precision" 2 "" $'zelcoord: -p takes 0 to 9 digits, not \'12\'\n'"$usage_coord" "" "$ZELCOORD" -p 12
check "zelcoord unknown option" 2 "" $'zelcoord: unknown argument \'-x\'\n'"$usage_coord" "" "$ZELCOORD" -x
check_match "zelcoord help" 0 '^Usage: zelcoord ' "" "" "$ZELCOORD" --help

# -------------------------------------------------------------- zelrecord
# SMjdTime image: day 60662 (f6 ec 00 00), 43200125.0 ms as an IEEE double
# (0x418499 73e8 000000, little-endian), accuracy 1 (01 00 00 00).
time_hex=f6ec0000000000e87399844101000000
# GPS week 1930 at 17.5 s: day 57754 (9a e1 00 00), 17500.0 ms (0x40d1170000000000).
time2_hex=9ae10000000000000017d14001000000
printf '\xf6\xec\x00\x00\x00\x00\x00\xe8\x73\x99\x84\x41\x01\x00\x00\x00' >"$work/time.bin"
head -c 15 "$work/time.bin" >"$work/time-short.bin"
: >"$work/empty.bin"
check "zelrecord text" 0 $'2345, 302400.125\n' "" "" "$ZELRECORD" text SMjdTime "$work/time.bin"
check "zelrecord text stdin" 0 $'2345, 302400.125\n' "" "" \
    bash -c '"$0" text SMjdTime - <"$1"' "$ZELRECORD" "$work/time.bin"
check "zelrecord text hex" 0 $'2345, 302400.125\n1930, 17.5\n' "" "$time_hex $time2_hex" \
    "$ZELRECORD" --hex text SMjdTime
check "zelrecord text precision" 0 $'2345, 302400\n' "" "$time_hex" "$ZELRECORD" --hex -p 6 text SMjdTime
check "zelrecord image hex" 0 "$time_hex"$'\n'"$time2_hex"$'\n' "" $'2345, 302400.125\n\n1930, 17.5\n' \
    "$ZELRECORD" --hex image SMjdTime
"$ZELRECORD" image SMjdTime - <<<'2345, 302400.125' >"$work/image.bin"
if cmp -s "$work/image.bin" "$work/time.bin"; then passed=$((passed + 1)); else failed=$((failed + 1)); echo "FAILED: zelrecord image binary"; fi
check "zelrecord one byte short" 1 "" \
    $'ERROR: the 15 bytes at offset 0 do not read as SMjdTime (its image takes at least 16 bytes); --verbose shows the library\'s reports\n' \
    "" "$ZELRECORD" text SMjdTime "$work/time-short.bin"
check_match "zelrecord one byte short verbose" 1 "" '^zelrecord: check failed: false \([A-Za-z]+\.h:[0-9]+\)$' "" \
    "$ZELRECORD" --verbose text SMjdTime "$work/time-short.bin"
check "zelrecord second image short" 1 $'' \
    $'ERROR: the 15 bytes at offset 16 do not read as SMjdTime (its image takes at least 16 bytes); --verbose shows the library\'s reports\n' \
    "${time_hex}${time_hex:0:30}" "$ZELRECORD" --hex text SMjdTime
check "zelrecord empty image" 1 "" $'ERROR: the input is empty\n' "" "$ZELRECORD" text SMjdTime "$work/empty.bin"
check "zelrecord empty text" 1 "" $'ERROR: the input holds no text line\n' "" "$ZELRECORD" --hex image SMjdTime
check "zelrecord odd hex" 1 "" $'ERROR: the hexadecimal input has an odd number of digits\n' "f6e" \
    "$ZELRECORD" --hex text SMjdTime
check "zelrecord bad hex" 1 "" $'ERROR: \'g\' at offset 2 is not a hexadecimal digit\n' "f6g" "$ZELRECORD" --hex text SMjdTime
check "zelrecord bad text" 1 "" $'ERROR: line 1: the text does not read as SMjdTime\n' $'week, 302400\n' \
    "$ZELRECORD" --hex image SMjdTime
check "zelrecord text after the record" 1 "" $'ERROR: line 1: \'x\' follows the text of SMjdTime\n' \
    $'2345, 302400.125 x\n' "$ZELRECORD" --hex image SMjdTime
# SZelCoordinateTriplet: system 0 (cartesian) as 32 bits, then X, Y, Z as
# doubles 4517590.8788, 123456.789 and 4487348.4087.
triplet_hex=000000005b423eb8b53b5141c976be9f0c24fe400b24281a2d1e5141
triplet_text='CooTyp, Cart, Coo, 4517590.8788, 123456.789, 4487348.4087'
check "zelrecord triplet text" 0 "$triplet_text"$'\n' "" "$triplet_hex" "$ZELRECORD" --hex text SZelCoordinateTriplet
check "zelrecord wrong tag" 0 "$triplet_hex"$'\n' \
    $'zelrecord: warning: line 1: word 1 is \'CooTip,\' where the kind writes \'CooTyp,\'\n' \
    "${triplet_text/CooTyp/CooTip}" "$ZELRECORD" --hex image SZelCoordinateTriplet
check "zelrecord wrong tag strict" 1 "" \
    $'ERROR: line 1: word 1 is \'CooTip,\' where the kind writes \'CooTyp,\'\n' \
    "${triplet_text/CooTyp/CooTip}" "$ZELRECORD" --strict --hex image SZelCoordinateTriplet
# An unknown enumeration word reads as the invalid system, -1.
check "zelrecord unknown word" 0 ffffffff"${triplet_hex:8}"$'\n' \
    $'zelrecord: warning: line 1: word 2 is \'Karte,\' where the kind writes \'Invalid,\'\n' \
    "${triplet_text/Cart/Karte}" "$ZELRECORD" --hex image SZelCoordinateTriplet
check_match "zelrecord guess" 0 '^SMjdTime$' "" "" "$ZELRECORD" guess "$work/time.bin"
check_match "zelrecord guess triplet" 0 '^SZelCoordinateTriplet$' "" "$triplet_hex" "$ZELRECORD" --hex guess -
check "zelrecord guess nothing" 1 "" $'ERROR: no kind reads exactly these 3 bytes\n' "abc" "$ZELRECORD" guess -
check "zelrecord guess empty" 1 "" $'ERROR: the input is empty\n' "" "$ZELRECORD" guess "$work/empty.bin"
check_match "zelrecord list header" 0 '^KIND +FAMILY +DEFAULT +SAMPLE +TEXT$' "" "" "$ZELRECORD" list
check_match "zelrecord list time" 0 '^SMjdTime +Core +16 +16 +yes$' "" "" "$ZELRECORD" list
usage_record=$'Try \'zelrecord --help\'.\n'
check "zelrecord unknown kind" 2 "" $'zelrecord: unknown kind \'SNoSuch\' (\'zelrecord list\' shows the kinds)\n'"$usage_record" \
    "" "$ZELRECORD" text SNoSuch
check "zelrecord no text form" 2 "" $'zelrecord: kind ZELX_SAT_ALMANAC has no text line\n'"$usage_record" \
    "" "$ZELRECORD" text ZELX_SAT_ALMANAC
check "zelrecord no command" 2 "" $'zelrecord: give a command: list, text, image or guess\n'"$usage_record" "" "$ZELRECORD"
check "zelrecord argument count" 2 "" $'zelrecord: wrong number of arguments for \'guess\'\n'"$usage_record" "" \
    "$ZELRECORD" guess
check "zelrecord missing file" 1 "" $'ERROR: cannot open \'no-such.bin\'\n' "" "$ZELRECORD" text SMjdTime no-such.bin
check_match "zelrecord help" 0 '^Usage: zelrecord ' "" "" "$ZELRECORD" --help

echo "$passed passed, $failed failed"
[ "$failed" = 0 ]

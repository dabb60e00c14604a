#!/usr/bin/env bash
# Builds kvformat and checks a few example values with the rules of the
# fields: amounts, names, dates, times and ID numbers.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build/host -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build/host -j"$(nproc)" --target kvformat >/dev/null
kvformat=build/host/tools/kvformat

echo "Amounts (9 integers, 2 decimals, separators, rounding, at most 1,000,000):"
printf '%s\n' 1234.567 -0042.5 "(1234.50)" 12a4 12345678901 1000000.01 \
  | "$kvformat" number --integers 9 --decimals 2 --separators --round --pad-decimals \
      --upper 1000000 --upper-kind inclusive || true
echo
echo "Names (2 to 10 characters, upper case):"
"$kvformat" string --min 2 --max 10 --case upper " smith " "x" "montgomery-burns" || true
echo
echo "Typing 1234567.89 into an empty amount field:"
"$kvformat" number --integers 9 --decimals 2 --separators --type "1234567.89"
echo
echo "Dates (month/day/year with slashes), times of day and ID numbers:"
"$kvformat" date --format MonthDayYearSlash 12/31/99 123199 2/30/2020 || true
"$kvformat" time --format ClockHourMinute 930 25:00 || true
"$kvformat" ssn 123456789 12-34 || true

# kvformat end to end: cmake -DKVFORMAT=<exe> -P run.cmake
# Each case runs kvformat once and compares standard output and exit status
# (and, where given, a piece of standard error). All cases run; the script fails
# at the end with a line-by-line diff of every case that went wrong.
if(NOT KVFORMAT)
  message(FATAL_ERROR "run.cmake: pass -DKVFORMAT=<path of kvformat>")
endif()

set(failures 0)
set(stdin_file "${CMAKE_CURRENT_BINARY_DIR}/kvformat-stdin.txt")

function(show_lines label text)
  string(REGEX REPLACE "\n$" "" text "${text}")
  string(REPLACE "\t" "\\t" text "${text}")
  string(REPLACE ";" "\\;" text "${text}")
  string(REPLACE "\n" ";" lines "${text}")
  foreach(line IN LISTS lines)
    message("    ${label} ${line}")
  endforeach()
endfunction()

# kvformat_case(<name> ARGS <arg>... [STDIN <text>] [STDOUT <text> | STDOUT_CONTAINS <text>]
#               STATUS <code> [STDERR_CONTAINS <text>])
function(kvformat_case name)
  cmake_parse_arguments(PARSE_ARGV 1 case "" "STDIN;STDOUT;STDOUT_CONTAINS;STATUS;STDERR_CONTAINS" "ARGS")
  file(WRITE "${stdin_file}" "${case_STDIN}")
  execute_process(COMMAND "${KVFORMAT}" ${case_ARGS}
    INPUT_FILE "${stdin_file}" OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)

  set(problems "")
  if(NOT status STREQUAL case_STATUS)
    list(APPEND problems "exit status ${status}, expected ${case_STATUS}")
  endif()
  if(DEFINED case_STDOUT AND NOT out STREQUAL case_STDOUT)
    list(APPEND problems "standard output differs")
  endif()
  if(DEFINED case_STDOUT_CONTAINS)
    string(FIND "${out}" "${case_STDOUT_CONTAINS}" at)
    if(at EQUAL -1)
      list(APPEND problems "standard output lacks '${case_STDOUT_CONTAINS}'")
    endif()
  endif()
  if(DEFINED case_STDERR_CONTAINS)
    string(FIND "${err}" "${case_STDERR_CONTAINS}" at)
    if(at EQUAL -1)
      list(APPEND problems "standard error lacks '${case_STDERR_CONTAINS}'")
    endif()
  endif()
  if(NOT problems)
    return()
  endif()

  math(EXPR count "${failures} + 1")
  set(failures ${count} PARENT_SCOPE)
  string(REPLACE ";" " " shown_args "${case_ARGS}")
  message("FAIL ${name}: kvformat ${shown_args}")
  foreach(problem IN LISTS problems)
    message("  ${problem}")
  endforeach()
  if(DEFINED case_STDOUT AND NOT out STREQUAL case_STDOUT)
    show_lines("-" "${case_STDOUT}")
    show_lines("+" "${out}")
  endif()
  show_lines("stderr:" "${err}")
endfunction()

# --- valid values: display form, then the raw form stored from it ------------
kvformat_case("separators and rounding" ARGS number --integers 9 --decimals 2 --separators --round 1234.567
  STDOUT "1,234.57\t1234.57\n" STATUS 0)
kvformat_case("zeros stripped" ARGS number 007.50 STDOUT "7.5\t7.5\n" STATUS 0)
kvformat_case("preset 2 pads and shows zero on exit" ARGS number --format 2 STDIN "1234.5\n\n"
  STDOUT "1,234.50\t1234.5\n0.00\t\n" STATUS 0)
kvformat_case("negative in parentheses" ARGS number --paren-negative --separators -1234.5
  STDOUT "(1,234.5)\t-1234.5\n" STATUS 0)
kvformat_case("implied decimal" ARGS number --implied-decimal 12345 STDOUT "123.45\t123.45\n" STATUS 0)
kvformat_case("rounding that would overflow is cut" ARGS number --lenient --integers 2 --round 99.999
  STDOUT "99.99\t99.99\n" STATUS 0)
kvformat_case("limit given inline" ARGS number --lower=5 --upper=10 --upper-kind=exclusive 5 9.99
  STDOUT "5\t5\n9.99\t9.99\n" STATUS 0)
kvformat_case("string trimmed and upper-cased" ARGS string --max 5 --min 2 --case upper " abc "
  STDOUT "ABC\tABC\n" STATUS 0)

kvformat_case("date widened and padded" ARGS date 1524 7-4-76
  STDOUT "1/05/2024\t01052024\n7/04/1976\t07041976\n" STATUS 0)
kvformat_case("date format by name" ARGS date --format DayMonthYearSlash 311224
  STDOUT "31/12/2024\t12312024\n" STATUS 0)
kvformat_case("date format by number" ARGS date --format 15 124 STDOUT "01/2024\t01002024\n" STATUS 0)
kvformat_case("lenient clock time, letters and surplus seconds dropped" ARGS time --lenient 930 9a30 12:30:45
  STDOUT "9:30\t0930\n9:30\t0930\n12:30\t1230\n" STATUS 0)
kvformat_case("time with seconds" ARGS time --format ClockHourMinuteSecond 93015 STDOUT "9:30:15\t093015\n" STATUS 0)
kvformat_case("elapsed hours beyond a day" ARGS time --format 1 99:59 STDOUT "99:59\t9959\n" STATUS 0)
kvformat_case("identification numbers hyphenated" ARGS ssn 123456789 AB1234567 123-45-6789
  STDOUT "123-45-6789\t123456789\nAB1-23-4567\tAB1234567\n123-45-6789\t123456789\n" STATUS 0)

# --- invalid values: message, selection of the faulty characters, text -------
set(not_accepted "(counting from 1) is not accepted.")  # after a refused character and its position
kvformat_case("too many integer digits, sign not selected" ARGS number --integers 3 -1234.5
  STDOUT "error\tToo many digits before the decimal point. A maximum of 3 digits is allowed.\t1..5\t-1234.5\n"
  STATUS 1)
kvformat_case("error selection follows the separators" ARGS number --integers 3 --separators -1234.5
  STDOUT "error\tToo many digits before the decimal point. A maximum of 3 digits is allowed.\t1..6\t-1,234.5\n"
  STATUS 1)
kvformat_case("too many decimals" ARGS number 1234.567
  STDOUT "error\tToo many digits after the decimal point. A maximum of 2 digits is allowed.\t5..8\t1234.567\n"
  STATUS 1)
kvformat_case("whole-number field refuses the fifth digit, with the reason" ARGS number --integers 4 --decimals 0 12345
  STDOUT "error\tCharacter '5' at position 5 ${not_accepted} Too many digits. A maximum of 4 digits is \
allowed.\t4..5\t12345\n"
  STATUS 1)
kvformat_case("upper limit inclusive" ARGS number --upper 100 100.5
  STDOUT "error\tValue must be less than or equal to 100.00.\t0..0\t100.5\n" STATUS 1)
kvformat_case("lower limit exclusive, empty is zero" ARGS number --lower 0 --lower-kind exclusive 0
  STDOUT "error\tValue must be greater than 0.00.\t0..0\t\n" STATUS 1)
kvformat_case("one invalid value among valid ones" ARGS number --decimals 0 1 2.5 3
  STDOUT "1\t1\nerror\tCharacter '.' at position 2 ${not_accepted}\t1..2\t2.5\n3\t3\n"
  STATUS 1)
kvformat_case("string too short" ARGS string --min 2 --case upper " a "
  STDOUT "error\tNot enough characters. A minimum of 2 characters is required.\t0..1\tA\n" STATUS 1)
kvformat_case("lenient string too long" ARGS string --lenient --max 3 abcdef
  STDOUT "error\tToo many characters. A maximum of 3 characters is allowed.\t3..6\tabcdef\n" STATUS 1)

kvformat_case("no such day" ARGS date 2/30/24
  STDOUT "error\t'30' is not a valid day for February.\t2..4\t2/30/2024\n" STATUS 1)
kvformat_case("one separator in a full date" ARGS date 1/1 STDOUT "error\tNot enough separators.\t3..3\t1/1\n" STATUS 1)
kvformat_case("year 0150 accepted but not stored" ARGS date --format YearOnly 0150
  STDOUT "error\tYear format must be YY or YYYY.\t0..3\t150\n" STATUS 1)
kvformat_case("hour past 23" ARGS time 2400 STDOUT "error\tInvalid hour.\t0..2\t24:00\n" STATUS 1)
kvformat_case("minutes selected up to the seconds" ARGS time --format 2 9:75
  STDOUT "error\tInvalid minutes.\t2..4\t9:75:00\n" STATUS 1)
kvformat_case("five digits do not split into a time" ARGS time --lenient 93015
  STDOUT "error\tInvalid time.\t0..5\t93015\n" STATUS 1)
kvformat_case("short number not padded" ARGS ssn 12345
  STDOUT "error\tNot enough digits. There must be 9 digits.\t0..5\t12345\n" STATUS 1)
kvformat_case("long number" ARGS ssn --lenient 1234567890
  STDOUT "error\tToo many digits. There must be 9 digits.\t0..10\t1234567890\n" STATUS 1)

# --- values pasted into an empty field first: a refused character fails ------
string(ASCII 255 254 high_bytes)
string(REPEAT "1" 70000 seventy_thousand_digits)
kvformat_case("letter in a number" ARGS number --integers 5 --decimals 2 1x2
  STDOUT "error\tCharacter 'x' at position 2 ${not_accepted}\t1..2\t1x2\n" STATUS 1
  STDERR_CONTAINS "beep")
kvformat_case("bytes before a number named in hex" ARGS number "${high_bytes}12"
  STDOUT "error\tCharacter '\\\\xFF' at position 1 ${not_accepted}\t0..1\t${high_bytes}12\n" STATUS 1)
kvformat_case("lenient validation drops the letter" ARGS number --lenient --integers 5 --decimals 2 1x2
  STDOUT "12\t12\n" STATUS 0)
kvformat_case("value too long for a field" ARGS number STDIN "${seventy_thousand_digits}\n"
  STDOUT_CONTAINS "error\tThe value is longer than 65535 characters.\t65535..70000\t111" STATUS 1)
kvformat_case("signs the number already shows taken, separators refused" ARGS number --paren-negative
  "(12.5)" +7 "(1,234.5)"
  STDOUT "(12.5)\t-12.5\n7\t7\nerror\tCharacter ',' at position 3 ${not_accepted}\t2..3\t(1,234.5)\n"
  STATUS 1)
kvformat_case("minus swallowed by a field without negatives" ARGS number --lower 0 -- -5
  STDOUT "error\tCharacter '-' at position 1 ${not_accepted}\t0..1\t-5\n" STATUS 1)
kvformat_case("string over its maximum, with the reason" ARGS string --max 3 abc abcd
  STDOUT "abc\tabc\nerror\tCharacter 'd' at position 4 ${not_accepted} Too many characters. A maximum of 3 \
characters is allowed.\t3..4\tabcd\n"
  STATUS 1)
kvformat_case("date typed with slashes, not with full stops" ARGS date --format MonthDayYearSlash 12/31/99 12.31.99
  STDOUT "12/31/1999\t12311999\nerror\tCharacter '.' at position 3 ${not_accepted}\t2..3\t12.31.99\n"
  STATUS 1)
kvformat_case("time letter refused" ARGS time 9:30 9a30
  STDOUT "9:30\t0930\nerror\tCharacter 'a' at position 2 ${not_accepted}\t1..2\t9a30\n" STATUS 1)
kvformat_case("time surplus seconds refused" ARGS time 12:30:45
  STDOUT "error\tCharacter ':' at position 6 ${not_accepted}\t5..6\t12:30:45\n" STATUS 1)
kvformat_case("spaces type hyphens, other marks refused silently" ARGS ssn "123 45 6789" "123#45#6789"
  STDOUT "123-45-6789\t123456789\nerror\tCharacter '#' at position 4 ${not_accepted}\t3..4\t123#45#6789\n"
  STATUS 1)
kvformat_case("lenient with another mode" ARGS number --lenient --type 1 STDOUT "" STATUS 2
  STDERR_CONTAINS "--lenient and --type exclude each other")

# --- raw values shown ---------------------------------------------------------
kvformat_case("raw to display" ARGS number --separators --from-raw 1234567.5
  STDOUT "1,234,567.5\t1234567.5\n" STATUS 0)
kvformat_case("raw negative in parentheses" ARGS number --from-raw --paren-negative -12.5
  STDOUT "(12.5)\t-12.5\n" STATUS 0)
kvformat_case("raw too wide" ARGS number --integers 3 --from-raw 12345
  STDOUT "error\tToo many digits before the decimal point. A maximum of 3 digits is allowed.\t0..5\t12345\n"
  STATUS 1)

kvformat_case("raw date shown unchecked, checked when stored" ARGS date --from-raw 12252023 13452024
  STDOUT "12/25/2023\t12252023\nerror\t'13' is not a valid month.\t0..2\t13/45/2024\n" STATUS 1)
kvformat_case("raw date of the wrong length" ARGS date --from-raw 2024
  STDOUT "error\tA raw date has eight digits, MMDDYYYY.\t0..4\t2024\n" STATUS 1)
kvformat_case("raw time seconds ignored" ARGS time --format ElapsedHourMinute --from-raw 093000
  STDOUT "9:30\t0930\n" STATUS 0)
kvformat_case("raw time without seconds" ARGS time --from-raw 0930
  STDOUT "error\tA raw time has six digits, HHMMSS.\t0..4\t0930\n" STATUS 1)
kvformat_case("raw time out of range" ARGS time --from-raw 129900
  STDOUT "error\tInvalid minutes.\t3..5\t12:99\n" STATUS 1)
kvformat_case("raw number" ARGS ssn --from-raw 123456789 12345
  STDOUT "123-45-6789\t123456789\nerror\tNot enough digits. There must be 9 digits.\t0..5\t12345\n" STATUS 1)

# --- typed keys: text and selection -----------------------------------------
kvformat_case("typing an amount" ARGS number --separators --type 1234567.89
  STDOUT "1,234,567.89\t12..12\n" STATUS 0)
kvformat_case("backspace" ARGS number --separators --type "1234\\b" STDOUT "123\t3..3\n" STATUS 0)
kvformat_case("delete at home" ARGS number --separators --type "1234\\h\\d" STDOUT "234\t0..0\n" STATUS 0)
kvformat_case("delete on a separator takes the next digit" ARGS number --separators --type "1234\\h\\>\\d"
  STDOUT "134\t1..1\n" STATUS 0)
kvformat_case("minus makes parentheses" ARGS number --paren-negative --type "12-" STDOUT "(12)\t3..3\n" STATUS 0)
kvformat_case("refused digit reports and beeps" ARGS number --integers 2 --decimals 0 --type 123
  STDOUT "12\t2..2\n" STATUS 0 STDERR_CONTAINS "status\tToo many digits. A maximum of 2 digits is allowed.\nbeep\n")
kvformat_case("overtype toggled by insert" ARGS string --type "abc\\h\\iX" STDOUT "Xbc\t1..1\n" STATUS 0)
kvformat_case("select all then type" ARGS string --type "abc\\sZ" STDOUT "Z\t1..1\n" STATUS 0)
kvformat_case("control byte typed and escaped" ARGS string --type "a\\x09b\\\\" STDOUT "a\\tb\\\\\t4..4\n" STATUS 0)

kvformat_case("typed date left as typed" ARGS date --type 12252023 STDOUT "12252023\t8..8\n" STATUS 0)
kvformat_case("eleventh date character beeps" ARGS date --type "12/25/20245" STDOUT "12/25/2024\t10..10\n" STATUS 0
  STDERR_CONTAINS "beep")
kvformat_case("year takes no separator" ARGS date --format YearOnly --type "20-24" STDOUT "2024\t4..4\n" STATUS 0
  STDERR_CONTAINS "beep")
kvformat_case("full time still takes its colon" ARGS time --type "12345:" STDOUT "1234:\t5..5\n" STATUS 0
  STDERR_CONTAINS "beep")
kvformat_case("space and full stop type hyphens, a third beeps" ARGS ssn --type "123.45 6789-0"
  STDOUT "123-45-6789\t11..11\n" STATUS 0 STDERR_CONTAINS "beep")

# --- values from standard input, one a line -----------------------------------
kvformat_case("stdin values, one refused" ARGS number --separators STDIN "1234\n-5.5\n12a\n\n"
  STDOUT "1,234\t1234\n-5.5\t-5.5\nerror\tCharacter 'a' at position 3 ${not_accepted}\t2..3\t12a\n\t\n"
  STATUS 1)
kvformat_case("stdin with CRLF" ARGS string --case lower STDIN "AB\r\nCd\r\n" STDOUT "ab\tab\ncd\tcd\n" STATUS 0)
kvformat_case("stdin keys" ARGS number --type STDIN "12\\b3\n" STDOUT "13\t2..2\n" STATUS 0)

kvformat_case("empty date stored as zeros" ARGS date STDIN "\n" STDOUT "\t00000000\n" STATUS 0)
kvformat_case("empty time stored as 00" ARGS time STDIN "\n930\n" STDOUT "\t00\n9:30\t0930\n" STATUS 0)
kvformat_case("stdin numbers with CRLF" ARGS ssn STDIN "123456789\r\n\n"
  STDOUT "123-45-6789\t123456789\n\t\n" STATUS 0)

# --- usage errors: nothing on standard output, exit status 2 ------------------
kvformat_case("no family" STDOUT "" STATUS 2 STDERR_CONTAINS "no formatter family given")
kvformat_case("unknown family" ARGS money 1 STDOUT "" STATUS 2 STDERR_CONTAINS "unknown formatter family 'money'")
kvformat_case("option of another family" ARGS number --max 5 1 STDOUT "" STATUS 2
  STDERR_CONTAINS "unknown option --max for number")
kvformat_case("missing option value" ARGS number --integers STDOUT "" STATUS 2
  STDERR_CONTAINS "--integers needs a value (N)")
kvformat_case("bad count" ARGS number --decimals x 1 STDOUT "" STATUS 2
  STDERR_CONTAINS "--decimals takes a whole number from 0 to 30, not 'x'")
kvformat_case("bad format value" ARGS number --format 0x 1 STDOUT "" STATUS 2 STDERR_CONTAINS "--format takes")
kvformat_case("bad limit" ARGS number --upper 1e999 1 STDOUT "" STATUS 2 STDERR_CONTAINS "--upper takes a decimal number")
kvformat_case("limit kind without limit" ARGS number --lower-kind exclusive 1 STDOUT "" STATUS 2
  STDERR_CONTAINS "--lower-kind needs --lower")
kvformat_case("bad case rule" ARGS string --case title x STDOUT "" STATUS 2
  STDERR_CONTAINS "--case takes any|upper|lower, not 'title'")
kvformat_case("switch given a value" ARGS number --round=1 1 STDOUT "" STATUS 2 STDERR_CONTAINS "--round takes no value")
kvformat_case("two modes" ARGS number --from-raw --type 1 STDOUT "" STATUS 2 STDERR_CONTAINS "exclude each other")
kvformat_case("unknown key" ARGS number --type "1\\q" STDOUT "" STATUS 2 STDERR_CONTAINS "unknown key \\q")
kvformat_case("unfinished byte" ARGS string --type "\\x4" STDOUT "" STATUS 2 STDERR_CONTAINS "\\x needs two hex digits")

kvformat_case("unknown date format" ARGS date --format Tomorrow 1 STDOUT "" STATUS 2
  STDERR_CONTAINS "--format takes a name or number that --help lists, not 'Tomorrow'")
kvformat_case("date format number out of range" ARGS date --format 18 1 STDOUT "" STATUS 2
  STDERR_CONTAINS "not '18'")
kvformat_case("time format number out of range" ARGS time --format 4 1 STDOUT "" STATUS 2 STDERR_CONTAINS "not '4'")
kvformat_case("format needs a value" ARGS time --format STDOUT "" STATUS 2
  STDERR_CONTAINS "--format needs a value (NAME|N)")
kvformat_case("identification numbers take no options" ARGS ssn --format 1 x STDOUT "" STATUS 2
  STDERR_CONTAINS "unknown option --format for ssn")

# --- help ---------------------------------------------------------------------
kvformat_case("help lists the families" ARGS --help STDOUT_CONTAINS "  number" STATUS 0)
kvformat_case("family help lists its options" ARGS number --help STDOUT_CONTAINS "--paren-negative" STATUS 0)
kvformat_case("date help lists the formats" ARGS date --help STDOUT_CONTAINS "17  YearOnly" STATUS 0)
kvformat_case("time help lists the formats" ARGS time --help STDOUT_CONTAINS " 3  ElapsedHourMinuteSecond"
  STATUS 0)
kvformat_case("help explains lenient" ARGS --help STDOUT_CONTAINS "  --lenient     validate VALUE as it is" STATUS 0)
kvformat_case("family without options says so" ARGS ssn --help STDOUT_CONTAINS "):\n  none\n" STATUS 0)

file(REMOVE "${stdin_file}")
if(failures GREATER 0)
  message(FATAL_ERROR "kvformat: ${failures} case(s) failed")
endif()

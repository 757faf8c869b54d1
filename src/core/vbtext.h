// Text semantics that the engine-output readers and the dialogs rely on: whole-string
// pattern matching, lenient number reading, banker's rounding and the number and time texts.
#pragma once

#include <QString>
#include <optional>

namespace quovara {

// Whole-string match, case significant. '*' any run (also none), '?' one character,
// '#' one digit, "[abc]" / "[a-z]" one character of the set, "[!abc]" one outside it.
bool Like(const QString& text, const QString& pattern);

// File-name wildcard match for the search: '*' and '?' only, case-insensitive, whole string.
// As on the engine's own platform, "*.*" matches every name, also one without a dot.
bool WildcardMatch(const QString& name, const QString& pattern);

// Lenient number reading: blanks, tabs and line feeds are skipped wherever they stand; an
// optional sign, digits, one '.', an optional exponent (E or D); reading stops at the first
// character that cannot continue a number; no number gives 0.
double Val(const QString& text);

// Removes blanks (U+0020 only) from both ends, or from the start or the end: tabs, line feeds
// and U+00A0 (byte 0xFF of code page 437) are text and stay.
QString TrimBlanks(const QString& text);
QString TrimLeadingBlanks(const QString& text);
QString TrimTrailingBlanks(const QString& text);

// Rounds to `decimals` places with halves going to the even digit. A tie is a value whose
// distance from one half is within the rounding error of the scaled value itself (a few units in
// its last place), so decimal ties such as 0.125 are found while large values are not moved.
double RoundHalfEven(double value, int decimals = 0);

// 16-bit conversion (halves to even). Empty when the value does not fit.
std::optional<qint16> ToInt16(double value);

// Shortest general form: 12 -> "12", 12.5 -> "12.5", with "." as decimal point.
QString NumberText(double value);

// Time-of-day text of a count of seconds, "HH:MM:SS". A negative count wraps to the time
// before midnight (-3 -> "23:59:57"); 24 hours or more shows a day part ("1d 01:00:00").
QString TimeText(qint64 seconds);

} // namespace quovara

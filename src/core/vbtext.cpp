#include "vbtext.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

namespace quovara {

namespace {

// Matches one bracket expression starting at pattern[pi] == '['. Returns the index after the
// closing ']' and whether `c` is in the set; -1 when the bracket is not closed.
int matchBracket(const QString& pattern, int pi, QChar c, bool& matched) {
    int i = pi + 1;
    bool negate = false;
    if (i < pattern.size() && pattern[i] == QLatin1Char('!')) {
        negate = true;
        ++i;
    }
    bool in = false;
    bool first = true;
    while (i < pattern.size() && (first || pattern[i] != QLatin1Char(']'))) {
        first = false;
        QChar lo = pattern[i];
        if (i + 2 < pattern.size() && pattern[i + 1] == QLatin1Char('-') &&
            pattern[i + 2] != QLatin1Char(']')) {
            QChar hi = pattern[i + 2];
            if (c >= lo && c <= hi)
                in = true;
            i += 3;
        } else {
            if (c == lo)
                in = true;
            ++i;
        }
    }
    if (i >= pattern.size())
        return -1;
    matched = negate ? !in : in;
    return i + 1;
}

template <typename Eq>
bool globMatch(const QString& text, const QString& pattern, bool brackets, bool digits, Eq eq) {
    // Iterative matcher with one back-tracking point for the last '*': linear in practice.
    int ti = 0, pi = 0;
    int starP = -1, starT = -1;
    while (ti < text.size()) {
        if (pi < pattern.size()) {
            QChar p = pattern[pi];
            if (p == QLatin1Char('*')) {
                starP = pi++;
                starT = ti;
                continue;
            }
            if (p == QLatin1Char('?')) {
                ++pi;
                ++ti;
                continue;
            }
            if (digits && p == QLatin1Char('#')) {
                if (text[ti].isDigit() && text[ti].unicode() < 128) {
                    ++pi;
                    ++ti;
                    continue;
                }
            } else if (brackets && p == QLatin1Char('[')) {
                bool in = false;
                int next = matchBracket(pattern, pi, text[ti], in);
                if (next < 0) {
                    // An unclosed bracket matches itself.
                    if (eq(text[ti], p)) {
                        ++pi;
                        ++ti;
                        continue;
                    }
                } else if (in) {
                    pi = next;
                    ++ti;
                    continue;
                }
            } else if (eq(text[ti], p)) {
                ++pi;
                ++ti;
                continue;
            }
        }
        if (starP < 0)
            return false;
        pi = starP + 1;
        ti = ++starT;
    }
    while (pi < pattern.size() && pattern[pi] == QLatin1Char('*'))
        ++pi;
    return pi == pattern.size();
}

} // namespace

bool Like(const QString& text, const QString& pattern) {
    return globMatch(text, pattern, true, true, [](QChar a, QChar b) { return a == b; });
}

bool WildcardMatch(const QString& name, const QString& pattern) {
    if (pattern == QLatin1String("*.*"))
        return true;
    return globMatch(name, pattern, false, false, [](QChar a, QChar b) {
        return a == b || a.toCaseFolded() == b.toCaseFolded();
    });
}

double Val(const QString& text) {
    std::string buf;
    enum { Sign, Int, Frac, ExpSign, Exp } state = Sign;
    for (QChar qc : text) {
        char16_t c = qc.unicode();
        if (c == u' ' || c == u'\t' || c == u'\n' || c == u'\r')
            continue;
        bool digit = c >= u'0' && c <= u'9';
        if (state == Sign) {
            if (c == u'+' || c == u'-') {
                buf += char(c);
                state = Int;
                continue;
            }
            state = Int;
        }
        if (state == Int) {
            if (digit) {
                buf += char(c);
                continue;
            }
            if (c == u'.') {
                buf += '.';
                state = Frac;
                continue;
            }
        } else if (state == Frac) {
            if (digit) {
                buf += char(c);
                continue;
            }
        } else if (state == ExpSign) {
            if (c == u'+' || c == u'-') {
                buf += char(c);
                state = Exp;
                continue;
            }
            if (digit) {
                buf += char(c);
                state = Exp;
                continue;
            }
            break;
        } else if (state == Exp) {
            if (digit) {
                buf += char(c);
                continue;
            }
            break;
        }
        if ((state == Int || state == Frac) && (c == u'e' || c == u'E' || c == u'd' || c == u'D')) {
            buf += 'e';
            state = ExpSign;
            continue;
        }
        break;
    }
    // strtod stops at an unfinished exponent by itself ("1e" reads as 1).
    if (buf.empty())
        return 0.0;
    char* end = nullptr;
    double v = std::strtod(buf.c_str(), &end);
    if (end == buf.c_str() || !std::isfinite(v))
        return std::isfinite(v) ? 0.0 : v;
    return v;
}

QString TrimLeadingBlanks(const QString& text) {
    qsizetype start = 0;
    while (start < text.size() && text[start] == QLatin1Char(' '))
        ++start;
    return text.mid(start);
}

QString TrimTrailingBlanks(const QString& text) {
    qsizetype end = text.size();
    while (end > 0 && text[end - 1] == QLatin1Char(' '))
        --end;
    return text.left(end);
}

QString TrimBlanks(const QString& text) {
    return TrimLeadingBlanks(TrimTrailingBlanks(text));
}

double RoundHalfEven(double value, int decimals) {
    if (!std::isfinite(value))
        return value;
    const double scale = std::pow(10.0, decimals);
    const double scaled = value * scale;
    const double lower = std::floor(scaled);
    const double diff = scaled - lower;
    // Decimal fractions such as 0.125 are not exact in binary, and scaling adds one more
    // rounding: a tie is a distance from one half within a few units in the last place of the
    // scaled value. Anything farther is a real difference, however large the value.
    const double eps =
        8.0 * std::numeric_limits<double>::epsilon() * std::max(1.0, std::fabs(scaled));
    double r;
    if (std::fabs(diff - 0.5) <= eps)
        r = std::fmod(lower, 2.0) == 0.0 ? lower : lower + 1.0;
    else
        r = diff < 0.5 ? lower : lower + 1.0;
    return r / scale;
}

std::optional<qint16> ToInt16(double value) {
    if (!std::isfinite(value))
        return std::nullopt;
    double r = RoundHalfEven(value, 0);
    if (r < -32768.0 || r > 32767.0)
        return std::nullopt;
    return static_cast<qint16>(r);
}

QString NumberText(double value) {
    if (value == 0.0)
        return QStringLiteral("0");
    QString s = QString::number(value, 'g', 15);
    if (s.contains(QLatin1Char('e')))
        s = s.toUpper();
    return s;
}

QString TimeText(qint64 seconds) {
    qint64 days = 0;
    qint64 t = seconds;
    if (t >= 86400) {
        days = t / 86400;
        t %= 86400;
    } else if (t < 0) {
        t = ((t % 86400) + 86400) % 86400;
    }
    const QString clock = QStringLiteral("%1:%2:%3")
                              .arg(t / 3600, 2, 10, QLatin1Char('0'))
                              .arg((t / 60) % 60, 2, 10, QLatin1Char('0'))
                              .arg(t % 60, 2, 10, QLatin1Char('0'));
    if (days > 0)
        return QStringLiteral("%1d %2").arg(days).arg(clock);
    return clock;
}

} // namespace quovara

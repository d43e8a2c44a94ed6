#include "Lexer.h"

#include "DialectError.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace dialect {

namespace {

// Marks in the key for the kinds of literals. No statement contains them, as control characters are refused.
constexpr char16_t textMark = 1;
constexpr char16_t longMark = 2;
constexpr char16_t doubleMark = 3;
constexpr char16_t dateMark = 4;

bool isBlank(char16_t c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == u'\u00a0'; }

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

std::optional<int> readNumber(QStringView text) {
    constexpr qsizetype mostDigits = 4;
    const bool digitsOnly = std::ranges::all_of(text, [](QChar c) { return isDigit(c.unicode()); });
    if (text.isEmpty() || text.size() > mostDigits || !digitsOnly) return std::nullopt;
    return text.toInt();
}

bool isNameStart(char16_t c) {
    if ((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_') return true;
    return c >= 0x80 && QChar::isLetter(c);
}

bool isNamePart(char16_t c) { return isNameStart(c) || isDigit(c); }

class Lexer {
public:
    Lexer(QStringView source, LexedStatement& statement)
        : m_source(source)
        , m_out(statement) {}

    void run() {
        m_out.tokens.clear();
        m_out.literals.clear();
        m_out.key.resize(0);
        while (skipBlanks()) readToken();
        m_out.key.append(m_source.sliced(m_keyed));
        m_out.tokens.push_back({.kind = TokenKind::End, .start = m_source.size()});
    }

private:
    char16_t at(qsizetype place) const { return place < m_source.size() ? m_source[place].unicode() : u'\0'; }

    bool skipBlanks() {
        while (m_place < m_source.size() && isBlank(at(m_place))) ++m_place;
        return m_place < m_source.size();
    }

    void readToken() {
        const char16_t first = at(m_place);
        if (isNameStart(first)) return readName();
        if (isDigit(first) || (first == u'.' && isDigit(at(m_place + 1)))) return readNumber();
        switch (first) {
        case u'\'':
            return readText();
        case u'#':
            return readDate();
        default:
            readSymbol(first);
        }
    }

    void add(TokenKind kind, qsizetype length) {
        m_out.tokens.push_back({.kind = kind, .start = m_place, .length = length});
        m_place += length;
    }

    void addLiteral(TokenKind kind, qsizetype length, Value value, char16_t mark) {
        m_out.key.append(m_source.sliced(m_keyed, m_place - m_keyed)).append(QChar(mark));
        add(kind, length);
        m_out.tokens.back().literal = static_cast<int>(m_out.literals.size());
        m_out.literals.push_back(std::move(value));
        m_keyed = m_place;
    }

    void readName() {
        qsizetype end = m_place + 1;
        while (isNamePart(at(end))) ++end;
        add(TokenKind::Name, end - m_place);
    }

    void readText() {
        const qsizetype start = m_place + 1;
        bool doubled = false;
        qsizetype end = m_source.indexOf(u'\'', start);
        while (end >= 0 && at(end + 1) == u'\'') {
            doubled = true;
            end = m_source.indexOf(u'\'', end + 2);
        }
        if (end < 0) throw syntaxError(RuntimeError::badText, rest());
        QString text = m_source.sliced(start, end - start).toString();
        if (doubled) text.replace(QStringLiteral("''"), QStringLiteral("'"));
        addLiteral(TokenKind::TextLiteral, end + 1 - m_place, std::move(text), textMark);
    }

    qsizetype digitsFrom(qsizetype place) const {
        while (isDigit(at(place))) ++place;
        return place;
    }

    /// A word may follow a number without a space: in "2005AND" the number ends before the A. In "1E5" the E
    /// is part of the number.
    void readNumber() {
        qsizetype end = digitsFrom(m_place);
        bool whole = true;
        if (at(end) == u'.') {
            whole = false;
            end = digitsFrom(end + 1);
        }
        if (at(end) == u'E' || at(end) == u'e') {
            const bool isSigned = at(end + 1) == u'+' || at(end + 1) == u'-';
            const qsizetype exponent = end + (isSigned ? 2 : 1);
            if (isDigit(at(exponent))) {
                whole = false;
                end = digitsFrom(exponent);
            }
        }
        addNumber(end - m_place, whole);
    }

    void addNumber(qsizetype length, bool whole) {
        const QStringView digits = m_source.sliced(m_place, length);
        if (whole && length <= std::numeric_limits<qint32>::digits10) {
            qint32 number = 0;
            for (const QChar digit : digits) number = number * 10 + (digit.unicode() - u'0');
            return addLiteral(TokenKind::NumberLiteral, length, number, longMark);
        }
        const double number = digits.toDouble();
        if (!std::isfinite(number)) throw syntaxError(RuntimeError::badExpression, rest());
        if (whole && number <= std::numeric_limits<qint32>::max())
            return addLiteral(TokenKind::NumberLiteral, length, static_cast<qint32>(number), longMark);
        addLiteral(TokenKind::NumberLiteral, length, number, doubleMark);
    }

    void readDate() {
        const qsizetype end = m_source.indexOf(u'#', m_place + 1);
        if (end < 0) throw syntaxError(RuntimeError::badDate, rest());
        const auto date = readDateLiteral(m_source.sliced(m_place + 1, end - m_place - 1));
        if (!date) throw syntaxError(RuntimeError::badDate, m_source.sliced(m_place, end + 1 - m_place));
        addLiteral(TokenKind::DateLiteral, end + 1 - m_place, *date, dateMark);
    }

    void readSymbol(char16_t first) {
        const char16_t second = at(m_place + 1);
        switch (first) {
        case u',':
            return add(TokenKind::Comma, 1);
        case u'.':
            return add(TokenKind::Dot, 1);
        case u'*':
            return add(TokenKind::Star, 1);
        case u'(':
            return add(TokenKind::Open, 1);
        case u')':
            return add(TokenKind::Close, 1);
        case u'=':
            return add(TokenKind::Equal, 1);
        case u'+':
            return add(TokenKind::Plus, 1);
        case u'<':
            if (second == u'>') return add(TokenKind::Unequal, 2);
            return second == u'=' ? add(TokenKind::LessEqual, 2) : add(TokenKind::Less, 1);
        case u'>':
            return second == u'=' ? add(TokenKind::GreaterEqual, 2) : add(TokenKind::Greater, 1);
        case u'-':
            // Two in a row would begin a comment in SQLite. The dialect has no comments.
            if (second != u'-') return add(TokenKind::Minus, 1);
            break;
        default:
            break;
        }
        throw syntaxError(RuntimeError::badExpression, rest());
    }

    QStringView rest() const { return m_source.sliced(m_place); }

    QStringView m_source;
    LexedStatement& m_out;
    qsizetype m_place = 0;
    qsizetype m_keyed = 0; ///< the source before this place is already in the key
};

} // namespace

void lexStatement(QStringView source, LexedStatement& statement) { Lexer(source, statement).run(); }

std::optional<Date> readDateLiteral(QStringView text) {
    std::vector<int> numbers;
    for (const QStringView part : text.trimmed().split(u'/'))
        if (const auto number = readNumber(part)) numbers.push_back(*number);
    if (numbers.size() != 3 || text.count(u'/') != 2) return std::nullopt;
    const QDate day(numbers[2], numbers[0], numbers[1]);
    if (!day.isValid() || day.year() < 100) return std::nullopt;
    return Date::fromQDate(day);
}

} // namespace dialect

#include "Lexer.h"

namespace dialect {

namespace {

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

bool isNameStart(char16_t c) {
    if ((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_') return true;
    return c >= 0x80 && QChar::isLetter(c);
}

class Lexer {
public:
    Lexer(QStringView source, LexedStatement& statement)
        : m_source(source)
        , m_out(statement) {}

    void run() {
        m_out.tokens.clear();
        m_out.literals.clear();
        m_out.key.resize(0);
        while (skipBlanks()) readToken(at(m_place));
        m_out.key.append(m_source.sliced(m_keyed));
        m_out.tokens.push_back({.kind = TokenKind::End, .start = m_source.size()});
    }

private:
    char16_t at(qsizetype place) const { return place < m_source.size() ? m_source[place].unicode() : u'\0'; }

    bool skipBlanks() {
        while (QChar::isSpace(at(m_place))) ++m_place;
        return m_place < m_source.size();
    }

    void readToken(char16_t first) {
        if (isNameStart(first)) return readName();
        if (isDigit(first)) return readNumber();
        switch (first) {
        case u'\'':
            return readText();
        case u'#':
            return readDate();
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
        case u'-':
            return add(TokenKind::Minus, 1);
        case u'=':
        case u'<':
        case u'>':
            return readComparison(first, at(m_place + 1));
        default:
            throw syntaxError(RuntimeError::badExpression, m_source.sliced(m_place));
        }
    }

    void add(TokenKind kind, qsizetype length) {
        m_out.tokens.push_back({.kind = kind, .start = m_place, .length = length});
        m_place += length;
    }

    /// Marks in the key are control characters, which are refused in statements.
    void addLiteral(qsizetype length, Value value) {
        const QChar mark(static_cast<ushort>(1 + static_cast<int>(value.kind())));
        m_out.key.append(m_source.sliced(m_keyed, m_place - m_keyed)).append(mark);
        add(TokenKind::Literal, length);
        m_out.tokens.back().literal = static_cast<int>(m_out.literals.size());
        m_out.literals.push_back(std::move(value));
        m_keyed = m_place;
    }

    void readComparison(char16_t first, char16_t second) {
        const bool isLong = first != u'=' && (second == u'=' || (first == u'<' && second == u'>'));
        add(TokenKind::Comparison, isLong ? 2 : 1);
    }

    void readName() {
        qsizetype end = m_place + 1;
        while (isNameStart(at(end)) || isDigit(at(end))) ++end;
        add(TokenKind::Name, end - m_place);
    }

    void readText() {
        const qsizetype start = m_place + 1;
        const qsizetype end = m_source.indexOf(u'\'', start);
        if (end < 0) throw syntaxError(RuntimeError::badText, m_source.sliced(m_place));
        addLiteral(end + 1 - m_place, m_source.sliced(start, end - start).toString());
    }

    /// A word may follow a number without a space: in "2005AND" the number ends before the A.
    void readNumber() {
        qsizetype end = m_place;
        while (isDigit(at(end))) ++end;
        const QStringView digits = m_source.sliced(m_place, end - m_place);
        bool fits = false;
        if (const int whole = digits.toInt(&fits); fits) return addLiteral(digits.size(), whole);
        const double number = digits.toDouble(&fits);
        if (!fits) throw syntaxError(RuntimeError::badExpression, m_source.sliced(m_place));
        addLiteral(digits.size(), number);
    }

    void readDate() {
        const qsizetype end = m_source.indexOf(u'#', m_place + 1);
        const auto date =
            end < 0 ? std::nullopt : readDateLiteral(m_source.sliced(m_place + 1, end - m_place - 1));
        if (!date) throw syntaxError(RuntimeError::badDate, m_source.sliced(m_place));
        addLiteral(end + 1 - m_place, *date);
    }

    QStringView m_source;
    LexedStatement& m_out;
    qsizetype m_place = 0;
    qsizetype m_keyed = 0; ///< the source before this place is already in the key
};

} // namespace

void lexStatement(QStringView source, LexedStatement& statement) { Lexer(source, statement).run(); }

std::optional<Date> readDateLiteral(QStringView text) {
    const QDate day = QDate::fromString(text.toString(), QStringLiteral("M/d/yyyy"));
    if (!day.isValid() || day.year() < 100) return std::nullopt;
    return Date::fromQDate(day);
}

RuntimeError syntaxError(const RuntimeError::Kind& fault, QStringView place) {
    constexpr qsizetype longest = 120;
    place = place.trimmed();
    const QString shown = place.first(std::min(place.size(), longest)).toString();
    return runtimeError(fault, place.size() > longest ? shown + u'…' : shown);
}

} // namespace dialect

#include "TokenReader.h"

#include <algorithm>
#include <array>

namespace dialect {

namespace {

constexpr auto languageWords = std::to_array<QStringView>({
    u"ALL",  u"AND",   u"AS",     u"ASC",   u"BETWEEN", u"BY",    u"DESC",   u"DISTINCT", u"EXISTS", u"FALSE",
    u"FROM", u"GROUP", u"HAVING", u"IN",    u"INNER",   u"IS",    u"JOIN",   u"LEFT",     u"LIKE",   u"NOT",
    u"NULL", u"ON",    u"OR",     u"ORDER", u"INTO",    u"RIGHT", u"SELECT", u"TRUE",     u"UNION",  u"WHERE",
});

bool isLanguageWord(QStringView name) {
    return std::ranges::any_of(
        languageWords, [name](QStringView word) { return word.compare(name, Qt::CaseInsensitive) == 0; });
}

} // namespace

const Token& TokenReader::peek(size_t ahead) const {
    // Any place beyond the last token has the End token.
    return m_statement.tokens[std::min(m_place + ahead, m_statement.tokens.size() - 1)];
}

const Token& TokenReader::take() {
    const Token& token = peek();
    ++m_place;
    return token;
}

bool TokenReader::accept(TokenKind kind) {
    if (!at(kind)) return false;
    ++m_place;
    return true;
}

bool TokenReader::atWord(QStringView word, size_t ahead) const {
    const Token& token = peek(ahead);
    return token.kind == TokenKind::Name && textOf(token).compare(word, Qt::CaseInsensitive) == 0;
}

bool TokenReader::acceptWord(QStringView word) {
    if (!atWord(word)) return false;
    ++m_place;
    return true;
}

void TokenReader::expect(TokenKind kind, const RuntimeError::Kind& fault) {
    if (!accept(kind)) fail(fault);
}

void TokenReader::expectWord(QStringView word, const RuntimeError::Kind& fault) {
    if (!acceptWord(word)) fail(fault);
}

bool TokenReader::atName(size_t ahead) const {
    const Token& token = peek(ahead);
    return token.kind == TokenKind::Name && !isLanguageWord(textOf(token));
}

QString TokenReader::takeName(const RuntimeError::Kind& fault) {
    if (!atName()) fail(fault);
    return textOf(take()).toString();
}

const Value& TokenReader::literal(const Token& token) const {
    return m_statement.literals[static_cast<size_t>(token.literal)];
}

size_t TokenReader::findFrom() const {
    const auto& tokens = m_statement.tokens;
    int brackets = 0;
    size_t place = m_place;
    for (; tokens[place].kind != TokenKind::End; ++place) {
        const Token& token = tokens[place];
        if (token.kind == TokenKind::Open) ++brackets;
        if (token.kind == TokenKind::Close && --brackets < 0) break;
        if (brackets == 0 && atWord(u"FROM", place - m_place)) return place;
    }
    return tokens.size() - 1;
}

void TokenReader::fail(const RuntimeError::Kind& fault) const { throw syntaxError(fault, clause()); }

QStringView TokenReader::clause() const { return m_source.sliced(m_clause); }

TokenReader::Level::Level(TokenReader& reader)
    : m_reader(reader) {
    constexpr int deepest = 50;
    if (reader.m_depth >= deepest) reader.fail(RuntimeError::nestedTooDeep);
    ++reader.m_depth;
}

} // namespace dialect

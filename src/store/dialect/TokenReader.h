#pragma once

#include "DialectError.h"
#include "Lexer.h"

namespace dialect {

/// Walks over the tokens of one statement.
class TokenReader {
public:
    TokenReader(QStringView source, const LexedStatement& statement)
        : m_source(source)
        , m_statement(statement) {}

    const Token& peek(size_t ahead = 0) const;
    const Token& take();
    bool at(TokenKind kind) const { return peek().kind == kind; }
    bool accept(TokenKind kind);
    bool atWord(QStringView word, size_t ahead = 0) const;
    bool acceptWord(QStringView word);
    void expect(TokenKind kind, const RuntimeError::Kind& fault);
    void expectWord(QStringView word, const RuntimeError::Kind& fault);

    /// Whether the token is a name and none of the language's own words.
    bool atName(size_t ahead = 0) const;
    QString takeName(const RuntimeError::Kind& fault);

    const Value& literal(const Token& token) const;

    size_t place() const { return m_place; }
    void moveTo(size_t place) { m_place = place; }
    /// The place of the FROM that belongs to the SELECT just read, outside of any brackets. Without one, the
    /// place of the End token.
    size_t findFrom() const;

    /// Errors quote the statement from here on.
    void beginClause() { m_clause = peek().start; }
    [[noreturn]] void fail(const RuntimeError::Kind& fault) const;
    QStringView clause() const;

    /// Counts one level of nesting while it exists. Error 3075 for a statement so deep that it might exhaust
    /// the stack.
    class Level {
    public:
        explicit Level(TokenReader& reader);
        ~Level() { --m_reader.m_depth; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

    private:
        TokenReader& m_reader;
    };

    /// A new alias for a table, unique in the statement.
    QByteArray nextAlias() { return 't' + QByteArray::number(m_aliases++); }

private:
    QStringView textOf(const Token& token) const { return m_source.sliced(token.start, token.length); }

    QStringView m_source;
    const LexedStatement& m_statement;
    size_t m_place = 0;
    qsizetype m_clause = 0;
    int m_depth = 0;
    int m_aliases = 0;
};

} // namespace dialect

#pragma once

#include "Value.h"

#include <QString>
#include <optional>
#include <vector>

namespace dialect {

enum class TokenKind : quint8 {
    End,
    Name,
    TextLiteral,
    NumberLiteral,
    DateLiteral,
    Comma,
    Dot,
    Star,
    Open,
    Close,
    Equal,
    Unequal,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Plus,
    Minus
};

struct Token {
    TokenKind kind = TokenKind::End;
    /// Of a literal, its place among the literals.
    int literal = -1;
    qsizetype start = 0;
    qsizetype length = 0;
};

/// A statement cut into tokens, with its literals lifted out.
struct LexedStatement {
    std::vector<Token> tokens; ///< ends with an End token
    std::vector<Value> literals;
    /// The statement with a mark for each literal that tells only its kind. Statements with the same key
    /// differ in nothing but the literals' values.
    QString key;
};

/// Cuts a statement into tokens. The buffers of `statement` are used again, so that a statement like the ones
/// before costs no memory. Error 3075 for signs that the dialect does not know, for literals that do not end
/// and for impossible dates.
void lexStatement(QStringView source, LexedStatement& statement);

/// The date between two number signs, written m/d/yyyy. Nothing if there is no such day.
std::optional<Date> readDateLiteral(QStringView text);

} // namespace dialect

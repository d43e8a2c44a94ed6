#pragma once

#include "RuntimeError.h"
#include "Value.h"

#include <optional>
#include <vector>

namespace dialect {

enum class TokenKind : quint8 { End, Name, Literal, Comparison, Comma, Dot, Star, Open, Close, Minus };

struct Token {
    TokenKind kind = TokenKind::End;
    /// Index in LexedStatement::literals, -1 if the token is no literal.
    int literal = -1;
    qsizetype start = 0;
    qsizetype length = 0;
};

/// A statement cut into tokens, with its literals lifted out.
struct LexedStatement {
    std::vector<Token> tokens; ///< ends with an End token
    std::vector<Value> literals;
    /// The statement with each literal replaced by a mark of its kind. Statements with the same key differ
    /// only in the values of their literals.
    QString key;
};

/// Cuts a statement into tokens. Reuses the buffers of `statement`, so that a statement similar to earlier
/// ones allocates no memory. Error 3075 for unknown characters, unfinished literals and impossible dates.
void lexStatement(QStringView source, LexedStatement& statement);

/// The date of a text m/d/yyyy, without the number signs around it. Empty if there is no such day.
std::optional<Date> readDateLiteral(QStringView text);

/// An error of this kind over a place in the statement, a long one cut off.
RuntimeError syntaxError(const RuntimeError::Kind& fault, QStringView place);

} // namespace dialect

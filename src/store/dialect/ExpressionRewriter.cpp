#include "ExpressionRewriter.h"

#include "SelectRewriter.h"
#include "SqlNames.h"

#include <array>

namespace dialect {

namespace {

struct ComparisonSign {
    TokenKind token;
    const char* sign;
};

constexpr auto comparisonSigns = std::to_array<ComparisonSign>({
    {TokenKind::Equal, "="},
    {TokenKind::Unequal, "<>"},
    {TokenKind::Less, "<"},
    {TokenKind::LessEqual, "<="},
    {TokenKind::Greater, ">"},
    {TokenKind::GreaterEqual, ">="},
});

FieldKind literalKind(const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Text:
        return FieldKind::Text;
    case Value::Kind::Date:
        return FieldKind::Date;
    case Value::Kind::Double:
        return FieldKind::Double;
    default:
        return FieldKind::Long;
    }
}

bool named(const QString& name, QStringView function) {
    return name.compare(function, Qt::CaseInsensitive) == 0;
}

} // namespace

Operand ExpressionRewriter::read() {
    const TokenReader::Level level(m_reader);
    return readChain(u"OR", &ExpressionRewriter::readConjunction);
}

/// Fails for a number, date or text alone, which is an unfinished comparison.
void ExpressionRewriter::requireTruth(const Operand& operand) const {
    if (operand.kind != FieldKind::Boolean && operand.kind != FieldKind::Untyped)
        m_reader.fail(RuntimeError::operatorExpected);
}

Operand ExpressionRewriter::readCondition() {
    Operand condition = read();
    requireTruth(condition);
    return condition;
}

/// Reads a chain of parts linked by `word`. Puts one pair of brackets around the chain, not one around each
/// link: SQLite refuses deeply nested brackets.
Operand ExpressionRewriter::readChain(QStringView word, Part part) {
    Operand chain = (this->*part)();
    bool linked = false;
    while (m_reader.acceptWord(word)) {
        requireTruth(chain);
        const Operand next = (this->*part)();
        requireTruth(next);
        chain = joined(chain, next, chain.sql + ' ' + word.toLatin1() + ' ' + next.sql, FieldKind::Boolean);
        linked = true;
    }
    if (linked) chain.sql = '(' + chain.sql + ')';
    return chain;
}

Operand ExpressionRewriter::readConjunction() {
    return readChain(u"AND", &ExpressionRewriter::readComparison);
}

Operand ExpressionRewriter::readComparison() {
    Operand left = readSigned();
    for (const ComparisonSign& comparison : comparisonSigns)
        if (m_reader.accept(comparison.token)) return compared(left, comparison.sign, readSigned());
    return m_reader.acceptWord(u"LIKE") ? readLike(left) : left;
}

Operand ExpressionRewriter::readLike(const Operand& left) {
    const Operand pattern = readSigned();
    return joined(left, pattern, QByteArray(sqlname::like) + '(' + left.sql + ", " + pattern.sql + ')',
                  FieldKind::Boolean);
}

Operand ExpressionRewriter::readSigned() {
    const bool negative = m_reader.at(TokenKind::Minus);
    if (!negative && !m_reader.at(TokenKind::Plus)) return readPrimary();
    m_reader.take();
    const TokenReader::Level level(m_reader);
    Operand operand = readSigned();
    if (operand.isText()) throw runtimeError(RuntimeError::criteriaDiffer);
    if (!negative) return operand;
    const FieldKind kind = operand.kind == FieldKind::Boolean ? FieldKind::Long : operand.kind;
    return joined(operand, {}, "(- " + asNumber(operand) + ')', kind);
}

Operand ExpressionRewriter::readPrimary() {
    switch (m_reader.peek().kind) {
    case TokenKind::TextLiteral:
    case TokenKind::NumberLiteral:
    case TokenKind::DateLiteral:
        return readLiteral();
    case TokenKind::Open:
        return readBracketed();
    default:
        break;
    }
    if (m_reader.acceptWord(u"TRUE")) return {.sql = "1", .kind = FieldKind::Boolean};
    if (m_reader.acceptWord(u"FALSE")) return {.sql = "0", .kind = FieldKind::Boolean};
    return readNamed();
}

Operand ExpressionRewriter::readLiteral() {
    const Token& token = m_reader.take();
    return {.sql = '?' + QByteArray::number(token.literal + 1), .kind = literalKind(m_reader.literal(token))};
}

Operand ExpressionRewriter::readBracketed() {
    m_reader.expect(TokenKind::Open, RuntimeError::badExpression);
    Operand inner = m_reader.atWord(u"SELECT") ? readValueSelect(m_reader, m_scope) : read();
    if (m_reader.at(TokenKind::Comma)) m_reader.fail(RuntimeError::misplacedComma);
    m_reader.expect(TokenKind::Close, RuntimeError::operatorExpected);
    return inner;
}

Operand ExpressionRewriter::readNamed() {
    // A word of the language where a value should stand: something is missing before it.
    const QString name = m_reader.takeName(RuntimeError::operatorExpected);
    if (m_reader.accept(TokenKind::Open)) return readAggregate(name);
    if (!m_reader.accept(TokenKind::Dot)) return fieldOperand(m_scope.resolve(name));
    return fieldOperand(m_scope.resolve(name, m_reader.takeName(RuntimeError::badExpression)));
}

Operand ExpressionRewriter::fieldOperand(const FieldReference& reference) const {
    return {
        .sql = reference.sql, .kind = reference.field->kind, .bareField = reference.field->name.toString()};
}

/// Call when the name and its opening bracket have been read.
Operand ExpressionRewriter::readAggregate(const QString& name) {
    const bool isCount = named(name, u"COUNT");
    const bool isSum = named(name, u"SUM");
    if (!isCount && !isSum && !named(name, u"MIN") && !named(name, u"MAX"))
        throw runtimeError(RuntimeError::unknownFunction, name);
    if (m_aggregates == Aggregates::Refused)
        throw syntaxError(RuntimeError::misplacedAggregate, m_reader.clause());
    const Operand argument = readAggregateArgument();
    if (isSum && argument.isText()) throw runtimeError(RuntimeError::criteriaDiffer);
    const QByteArray inner = isSum ? asNumber(argument) : collated(argument);
    Operand result{
        .sql = name.toUpper().toLatin1() + '(' + inner + ')', .kind = argument.kind, .aggregate = true};
    if (isCount || argument.kind == FieldKind::AutoNumber) result.kind = FieldKind::Long;
    if (isSum && argument.kind != FieldKind::Double) result.kind = FieldKind::Number;
    return result;
}

Operand ExpressionRewriter::readAggregateArgument() {
    Operand argument = ExpressionRewriter(m_reader, m_scope, Aggregates::Refused).read();
    m_reader.expect(TokenKind::Close, RuntimeError::operatorExpected);
    return argument;
}

} // namespace dialect

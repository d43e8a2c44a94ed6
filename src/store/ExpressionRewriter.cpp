#include "ExpressionRewriter.h"

#include "SelectRewriter.h"
#include "SqlFunctions.h"

#include <array>

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

/// A number or a text alone is a comparison that was left unfinished.
void ExpressionRewriter::requireTruth(const Operand& operand) const {
    if (operand.kind != FieldKind::Boolean && operand.kind != FieldKind::Untyped)
        m_reader.fail(SyntaxFault::Operator);
}

Operand ExpressionRewriter::readCondition() {
    Operand condition = read();
    requireTruth(condition);
    return condition;
}

/// Writes a chain without brackets around each link, which the engine could not follow for long.
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

Operand ExpressionRewriter::readConjunction() { return readChain(u"AND", &ExpressionRewriter::readNegation); }

Operand ExpressionRewriter::readNegation() {
    if (!m_reader.acceptWord(u"NOT")) return readComparison();
    const TokenReader::Level level(m_reader);
    Operand operand = readNegation();
    requireTruth(operand);
    return joined(operand, {}, "(NOT " + operand.sql + ')', FieldKind::Boolean);
}

Operand ExpressionRewriter::readComparison() {
    Operand left = readConcatenation();
    for (const ComparisonSign& comparison : comparisonSigns)
        if (m_reader.accept(comparison.token)) return compared(left, comparison.sign, readConcatenation());
    return readTest(std::move(left));
}

Operand ExpressionRewriter::readTest(Operand left) {
    if (m_reader.acceptWord(u"IS")) return readNullTest(left);
    const QByteArray negation = m_reader.acceptWord(u"NOT") ? " NOT" : "";
    if (m_reader.acceptWord(u"LIKE")) return readLike(left, negation);
    if (m_reader.acceptWord(u"IN")) return readIn(left, negation);
    if (m_reader.acceptWord(u"BETWEEN")) return readBetween(left, negation);
    if (!negation.isEmpty()) m_reader.fail(SyntaxFault::Operator);
    return left;
}

Operand ExpressionRewriter::readNullTest(const Operand& left) {
    const QByteArray test = m_reader.acceptWord(u"NOT") ? " IS NOT NULL" : " IS NULL";
    m_reader.expectWord(u"NULL", SyntaxFault::Operator);
    return joined(left, {}, '(' + left.sql + test + ')', FieldKind::Boolean);
}

Operand ExpressionRewriter::readLike(const Operand& left, const QByteArray& negation) {
    const Operand pattern = readConcatenation();
    const QByteArray call = QByteArray(sqlname::like) + '(' + left.sql + ", " + pattern.sql + ')';
    return joined(left, pattern, negation.isEmpty() ? call : "(NOT " + call + ')', FieldKind::Boolean);
}

Operand ExpressionRewriter::readIn(const Operand& left, const QByteArray& negation) {
    m_reader.expect(TokenKind::Open, SyntaxFault::Operator);
    if (!m_reader.atWord(u"SELECT")) return readInList(left, negation);
    const Operand list = readListSelect(m_reader, m_scope);
    m_reader.expect(TokenKind::Close, SyntaxFault::Operator);
    requireComparable(left, list);
    return joined(left, {}, '(' + collated(left) + negation + " IN (" + list.sql + "))", FieldKind::Boolean);
}

Operand ExpressionRewriter::readInList(const Operand& left, const QByteArray& negation) {
    Operand list = left;
    list.sql = '(' + collated(left) + negation + " IN (";
    do {
        const Operand item = readConcatenation();
        requireComparable(left, item);
        list = joined(list, item, list.sql + item.sql + ", ", left.kind);
    } while (m_reader.accept(TokenKind::Comma));
    m_reader.expect(TokenKind::Close, SyntaxFault::Operator);
    list.sql.chop(2);
    return joined(list, {}, list.sql + "))", FieldKind::Boolean);
}

Operand ExpressionRewriter::readBetween(const Operand& left, const QByteArray& negation) {
    const Operand low = readConcatenation();
    m_reader.expectWord(u"AND", SyntaxFault::Operator);
    const Operand high = readConcatenation();
    requireComparable(left, low);
    requireComparable(left, high);
    const QByteArray bounds = asNumber(low) + " AND " + asNumber(high);
    const Operand operands = joined(joined(left, low, {}, left.kind), high, {}, left.kind);
    return joined(operands, {},
                  '(' + asNumber({.sql = collated(left), .kind = left.kind}) + negation + " BETWEEN " +
                      bounds + ')',
                  FieldKind::Boolean);
}

Operand ExpressionRewriter::readConcatenation() {
    Operand text = readSum();
    while (m_reader.accept(TokenKind::Ampersand)) text = concatenated(text, readSum());
    return text;
}

Operand ExpressionRewriter::readSum() {
    Operand sum = readProduct();
    while (true) {
        if (m_reader.accept(TokenKind::Plus))
            sum = calculated(sum, '+', readProduct());
        else if (m_reader.accept(TokenKind::Minus))
            sum = calculated(sum, '-', readProduct());
        else
            return sum;
    }
}

Operand ExpressionRewriter::readProduct() {
    Operand product = readSigned();
    while (true) {
        if (m_reader.accept(TokenKind::Star))
            product = calculated(product, '*', readSigned());
        else if (m_reader.accept(TokenKind::Slash))
            product = calculated(product, '/', readSigned());
        else
            return product;
    }
}

Operand ExpressionRewriter::readSigned() {
    const bool negative = m_reader.at(TokenKind::Minus);
    if (!negative && !m_reader.at(TokenKind::Plus)) return readPrimary();
    m_reader.take();
    const TokenReader::Level level(m_reader);
    Operand operand = readSigned();
    if (operand.isText()) throw unlikeKinds();
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
    if (m_reader.acceptWord(u"NULL")) return {.sql = "NULL"};
    if (m_reader.acceptWord(u"EXISTS")) return readExists();
    return readNamed();
}

Operand ExpressionRewriter::readLiteral() {
    const Token& token = m_reader.take();
    return {.sql = '?' + QByteArray::number(token.literal + 1), .kind = literalKind(m_reader.literal(token))};
}

Operand ExpressionRewriter::readBracketed() {
    m_reader.expect(TokenKind::Open, SyntaxFault::General);
    Operand inner = m_reader.atWord(u"SELECT") ? readValueSelect(m_reader, m_scope) : read();
    if (m_reader.at(TokenKind::Comma)) m_reader.fail(SyntaxFault::Comma);
    m_reader.expect(TokenKind::Close, SyntaxFault::Operator);
    return inner;
}

Operand ExpressionRewriter::readExists() {
    m_reader.expect(TokenKind::Open, SyntaxFault::General);
    const QByteArray select = readExistsSelect(m_reader, m_scope);
    m_reader.expect(TokenKind::Close, SyntaxFault::Operator);
    return {.sql = "EXISTS (" + select + ')', .kind = FieldKind::Boolean};
}

Operand ExpressionRewriter::readNamed() {
    // A word of the language where a value should stand: something is missing before it.
    const QString name = m_reader.takeName(SyntaxFault::Operator);
    if (m_reader.accept(TokenKind::Open)) return readAggregate(name);
    if (!m_reader.accept(TokenKind::Dot)) return fieldOperand(m_scope.resolve(name));
    return fieldOperand(m_scope.resolve(name, m_reader.takeName(SyntaxFault::General)));
}

Operand ExpressionRewriter::fieldOperand(const FieldReference& reference) const {
    return {
        .sql = reference.sql, .kind = reference.field->kind, .bareField = reference.field->name.toString()};
}

/// The bracket behind the name has been read.
Operand ExpressionRewriter::readAggregate(const QString& name) {
    const bool isCount = named(name, u"COUNT");
    const bool isSum = named(name, u"SUM");
    const bool isMean = named(name, u"AVG");
    if (!isCount && !isSum && !isMean && !named(name, u"MIN") && !named(name, u"MAX"))
        throw unknownFunction(name);
    if (m_aggregates == Aggregates::Refused) throw misplacedAggregate(m_reader.clause());
    if (isCount && m_reader.accept(TokenKind::Star)) {
        m_reader.expect(TokenKind::Close, SyntaxFault::Operator);
        return {.sql = "COUNT(*)", .kind = FieldKind::Long, .aggregate = true};
    }
    const Operand argument = readAggregateArgument();
    if ((isSum || isMean) && argument.isText()) throw unlikeKinds();
    const QByteArray inner = isSum || isMean ? asNumber(argument) : collated(argument);
    Operand result{
        .sql = name.toUpper().toLatin1() + '(' + inner + ')', .kind = argument.kind, .aggregate = true};
    if (isCount || argument.kind == FieldKind::AutoNumber) result.kind = FieldKind::Long;
    if (isMean) result.kind = FieldKind::Double;
    if (isSum && argument.kind != FieldKind::Double) result.kind = FieldKind::Number;
    return result;
}

Operand ExpressionRewriter::readAggregateArgument() {
    Operand argument = ExpressionRewriter(m_reader, m_scope, Aggregates::Refused).read();
    m_reader.expect(TokenKind::Close, SyntaxFault::Operator);
    return argument;
}

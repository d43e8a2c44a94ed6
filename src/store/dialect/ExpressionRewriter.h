#pragma once

#include "Operand.h"
#include "Scope.h"
#include "TokenReader.h"

namespace dialect {

/// Reads one expression of the dialect and rewrites it for SQLite.
///
/// From the weakest to the strongest binding: OR; AND; comparison and LIKE; plus or minus before a value.
/// Knows only what the routines' statements use.
class ExpressionRewriter {
public:
    enum class Aggregates : quint8 { Allowed, Refused };

    ExpressionRewriter(TokenReader& reader, const Scope& scope, Aggregates aggregates)
        : m_reader(reader)
        , m_scope(scope)
        , m_aggregates(aggregates) {}

    Operand read();
    /// As above for a condition. Error 3075 if it is neither a comparison nor a truth value.
    Operand readCondition();

private:
    using Part = Operand (ExpressionRewriter::*)();

    void requireTruth(const Operand& operand) const;
    Operand readChain(QStringView word, Part part);
    Operand readConjunction();
    Operand readComparison();
    Operand readLike(const Operand& left);
    Operand readSigned();
    Operand readPrimary();
    Operand readLiteral();
    Operand readBracketed();
    Operand readNamed();
    Operand readAggregate(const QString& name);
    Operand readAggregateArgument();
    Operand fieldOperand(const FieldReference& reference) const;

    TokenReader& m_reader;
    const Scope& m_scope;
    Aggregates m_aggregates;
};

} // namespace dialect

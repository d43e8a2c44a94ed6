#include "SelectRewriter.h"

#include "ExpressionRewriter.h"
#include "SqlNames.h"

#include <algorithm>

namespace dialect {

namespace {

using Aggregates = ExpressionRewriter::Aggregates;

// The limits of the classic database, far beyond any screen's statements.
constexpr size_t mostColumns = 255;
constexpr size_t mostTables = 32;

struct Item {
    Operand operand;
    QString name;
    int field = -1;
};

class SelectRewriter {
public:
    SelectRewriter(TokenReader& reader, const Scope* outer)
        : m_reader(reader)
        , m_scope(outer) {}

    void read();
    SelectPlan plan() const;
    Operand value() const;
    QByteArray sql(const QByteArray& columns) const;

private:
    void readSources();
    void readSource();
    void readItems();
    void readItem();
    void add(Item item);
    void addFields(const Source& source);
    void checkAggregates() const;
    void nameItems();
    QByteArray columns() const;
    bool isAggregate() const;
    const Item& onlyItem() const;

    TokenReader& m_reader;
    Scope m_scope;
    std::vector<Item> m_items;
    QByteArray m_where;
};

/// Reads the tables before the columns, though they follow them: the columns need the tables' fields.
void SelectRewriter::read() {
    m_reader.beginClause();
    m_reader.expectWord(u"SELECT", RuntimeError::noSelect);
    const size_t items = m_reader.place();
    const size_t from = m_reader.findFrom();
    m_reader.moveTo(from);
    m_reader.expectWord(u"FROM", RuntimeError::badExpression);
    readSources();
    const size_t behindSources = m_reader.place();
    m_reader.moveTo(items);
    readItems();
    if (m_reader.place() != from) m_reader.fail(RuntimeError::operatorExpected);
    m_reader.moveTo(behindSources);
    if (m_reader.acceptWord(u"WHERE")) {
        m_reader.beginClause();
        m_where = ExpressionRewriter(m_reader, m_scope, Aggregates::Refused).readCondition().sql;
    }
    checkAggregates();
}

void SelectRewriter::readSources() {
    do readSource();
    while (m_reader.accept(TokenKind::Comma));
}

void SelectRewriter::readSource() {
    const QString tableName = m_reader.takeName(RuntimeError::badFrom);
    const TableSpec* table = findTable(tableName);
    if (table == nullptr) throw runtimeError(RuntimeError::tableNotFound, tableName);
    QString name = m_reader.atName() ? m_reader.takeName(RuntimeError::badFrom) : tableName;
    if (m_scope.findSource(name) != nullptr) m_reader.fail(RuntimeError::badFrom);
    if (m_scope.sources().size() == mostTables) throw runtimeError(RuntimeError::tooComplex);
    m_scope.add({table, std::move(name), m_reader.nextAlias()});
}

void SelectRewriter::readItems() {
    m_reader.beginClause();
    do readItem();
    while (m_reader.accept(TokenKind::Comma));
    nameItems();
}

void SelectRewriter::readItem() {
    if (m_reader.accept(TokenKind::Star)) {
        for (const Source& source : m_scope.sources()) addFields(source);
        return;
    }
    Item item{.operand = ExpressionRewriter(m_reader, m_scope, Aggregates::Allowed).read(), .name = {}};
    for (const Source& source : m_scope.sources()) {
        const int field = source.table->fieldIndex(item.operand.bareField);
        if (field < 0 || fieldOf(source, field).sql != item.operand.sql) continue;
        item.field = field;
        item.name = item.operand.bareField;
    }
    add(std::move(item));
}

void SelectRewriter::add(Item item) {
    if (m_items.size() == mostColumns) throw runtimeError(RuntimeError::tooManyFields);
    m_items.push_back(std::move(item));
}

void SelectRewriter::addFields(const Source& source) {
    for (size_t i = 0; i < source.table->fields.size(); ++i) {
        const int field = static_cast<int>(i);
        const FieldReference reference = fieldOf(source, field);
        const QString name = reference.field->name.toString();
        Operand operand{.sql = reference.sql, .kind = reference.field->kind, .bareField = name};
        add({std::move(operand), name, field});
    }
}

/// Numbers the columns that are no fields, as these have no name of their own.
void SelectRewriter::nameItems() {
    int unnamed = 1000;
    for (Item& item : m_items)
        if (item.name.isEmpty()) item.name = QStringLiteral("Expr%1").arg(unnamed++);
}

bool SelectRewriter::isAggregate() const {
    return std::ranges::any_of(m_items, [](const Item& item) { return item.operand.aggregate; });
}

void SelectRewriter::checkAggregates() const {
    if (!isAggregate()) return;
    for (const Item& item : m_items)
        if (!item.operand.bareField.isEmpty())
            throw runtimeError(RuntimeError::fieldOutsideAggregate, item.operand.bareField);
}

QByteArray SelectRewriter::columns() const {
    QByteArrayList columns;
    for (const Item& item : m_items) columns += item.operand.sql;
    return columns.join(", ");
}

QByteArray SelectRewriter::sql(const QByteArray& columns) const {
    QByteArrayList tables;
    for (const Source& source : m_scope.sources())
        tables += quotedName(source.table->name) + " AS " + source.alias;
    const QByteArray select = "SELECT " + columns + " FROM " + tables.join(", ");
    return m_where.isEmpty() ? select : select + " WHERE " + m_where;
}

SelectPlan SelectRewriter::plan() const {
    SelectPlan plan;
    const bool editable = m_scope.sources().size() == 1 && !isAggregate();
    for (const Item& item : m_items)
        plan.columns.push_back({item.name, item.operand.kind, editable ? item.field : -1});
    if (!editable) {
        plan.sql = sql(columns());
        return plan;
    }
    const Source& source = m_scope.sources().front();
    plan.editable = source.table;
    // In the order of an index, a row that a change has moved ahead would be met again. Row numbers prevent
    // that.
    plan.sql = sql(source.alias + ".rowid, " + columns()) + " ORDER BY " + source.alias + ".rowid";
    return plan;
}

const Item& SelectRewriter::onlyItem() const {
    if (m_items.size() != 1) throw runtimeError(RuntimeError::tooManyColumns);
    return m_items.front();
}

Operand SelectRewriter::value() const {
    const Item& item = onlyItem();
    const QByteArray single = sqlname::singleValue;
    const QByteArray select = isAggregate() ? sql(columns()) : sql(single + '(' + columns() + ')');
    return {.sql = '(' + select + ')', .kind = item.operand.kind};
}

void requireEnd(TokenReader& reader) {
    if (reader.at(TokenKind::Comma)) reader.fail(RuntimeError::misplacedComma);
    if (!reader.at(TokenKind::End)) reader.fail(RuntimeError::operatorExpected);
}

} // namespace

SelectPlan rewriteSelect(QStringView source, const LexedStatement& statement) {
    // Many times the length of any screen's statement. A longer one is refused before it costs time.
    constexpr size_t mostTokens = 10'000;
    if (statement.tokens.size() > mostTokens) throw runtimeError(RuntimeError::tooComplex);
    TokenReader reader(source, statement);
    SelectRewriter select(reader, nullptr);
    select.read();
    requireEnd(reader);
    return select.plan();
}

Operand readValueSelect(TokenReader& reader, const Scope& outer) {
    const TokenReader::Level level(reader);
    SelectRewriter select(reader, &outer);
    select.read();
    return select.value();
}

} // namespace dialect

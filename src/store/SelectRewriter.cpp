#include "SelectRewriter.h"

#include "ExpressionRewriter.h"
#include "SqlFunctions.h"

#include <algorithm>

namespace {

using Aggregates = ExpressionRewriter::Aggregates;

// What the classic database allows, and far more than a screen asks for.
constexpr size_t mostColumns = 255;
constexpr size_t mostTables = 32;

struct Item {
    Operand operand;
    QString name;
    QString sourceName = {}; ///< the table it is a field of
    int field = -1;
    bool hasAlias = false;
};

class SelectRewriter {
public:
    SelectRewriter(TokenReader& reader, const Scope* outer)
        : m_reader(reader)
        , m_scope(outer) {}

    void read();
    void readOrder();
    SelectPlan plan() const;
    Operand value() const;
    Operand list() const;
    QByteArray sql(const QByteArray& columns) const;

private:
    void readSources();
    void readSource();
    void readItems();
    void readItem();
    void add(Item item);
    void addFields(const Source& source);
    void readAlias(Item& item);
    void readOrderTerm();
    const Item* ordinalItem();
    const Item* aliasItem();
    bool endsOrderTerm(size_t ahead) const;
    void checkAggregates() const;
    void nameItems();
    bool nameOccursTwice(const Item& item) const;
    QByteArray columns() const;
    bool isAggregate() const;
    const Item& onlyItem() const;

    TokenReader& m_reader;
    Scope m_scope;
    std::vector<Item> m_items;
    QByteArray m_where;
    QByteArray m_order;
    bool m_distinct = false;
    bool m_reusable = true;
};

/// The tables stand behind the columns but must be known before them.
void SelectRewriter::read() {
    m_reader.beginClause();
    m_reader.expectWord(u"SELECT", SyntaxFault::NoSelect);
    m_distinct = m_reader.acceptWord(u"DISTINCT");
    if (!m_distinct) m_reader.acceptWord(u"ALL");
    const size_t items = m_reader.place();
    const size_t from = m_reader.findFrom();
    m_reader.moveTo(from);
    m_reader.expectWord(u"FROM", SyntaxFault::General);
    readSources();
    const size_t behindSources = m_reader.place();
    m_reader.moveTo(items);
    readItems();
    if (m_reader.place() != from) m_reader.fail(SyntaxFault::Operator);
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
    const QString tableName = m_reader.takeName(SyntaxFault::From);
    const TableSpec* table = findTable(tableName);
    if (table == nullptr) throw runtimeError(3078, tableName);
    const bool as = m_reader.acceptWord(u"AS");
    QString name = as || m_reader.atName() ? m_reader.takeName(SyntaxFault::From) : tableName;
    if (m_scope.findSource(name) != nullptr) m_reader.fail(SyntaxFault::From);
    if (m_scope.sources().size() == mostTables) throw tooComplex();
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
    if (m_reader.atName() && m_reader.peek(1).kind == TokenKind::Dot &&
        m_reader.peek(2).kind == TokenKind::Star) {
        const Source* source = m_scope.findSource(m_reader.takeName(SyntaxFault::General));
        if (source == nullptr) throw unknownField();
        m_reader.moveTo(m_reader.place() + 2);
        return addFields(*source);
    }
    Item item{.operand = ExpressionRewriter(m_reader, m_scope, Aggregates::Allowed).read(), .name = {}};
    for (const Source& source : m_scope.sources()) {
        const int field = source.table->fieldIndex(item.operand.bareField);
        if (field < 0 || fieldOf(source, field).sql != item.operand.sql) continue;
        item.field = field;
        item.sourceName = source.name;
        item.name = item.operand.bareField;
    }
    readAlias(item);
    add(std::move(item));
}

void SelectRewriter::add(Item item) {
    if (m_items.size() == mostColumns) throw tooManyFields();
    m_items.push_back(std::move(item));
}

void SelectRewriter::addFields(const Source& source) {
    for (size_t i = 0; i < source.table->fields.size(); ++i) {
        const int field = static_cast<int>(i);
        const FieldReference reference = fieldOf(source, field);
        const QString name = reference.field->name.toString();
        Operand operand{.sql = reference.sql, .kind = reference.field->kind, .bareField = name};
        add({std::move(operand), name, source.name, field});
    }
}

void SelectRewriter::readAlias(Item& item) {
    if (!m_reader.acceptWord(u"AS")) return;
    item.name = m_reader.takeName(SyntaxFault::General);
    item.hasAlias = true;
}

bool SelectRewriter::nameOccursTwice(const Item& item) const {
    return std::ranges::count_if(m_items, [&item](const Item& other) {
               return other.name.compare(item.name, Qt::CaseInsensitive) == 0;
           }) > 1;
}

/// Columns of one name from two tables are told apart by the table; what has no name is numbered.
void SelectRewriter::nameItems() {
    std::vector<QString> names;
    int unnamed = 1000;
    for (const Item& item : m_items) {
        const bool isDouble = !item.hasAlias && item.field >= 0 && nameOccursTwice(item);
        if (item.name.isEmpty())
            names.push_back(QStringLiteral("Expr%1").arg(unnamed++));
        else
            names.push_back(isDouble ? item.sourceName + u'.' + item.name : item.name);
    }
    for (size_t i = 0; i < names.size(); ++i) m_items[i].name = names[i];
}

bool SelectRewriter::isAggregate() const {
    return std::ranges::any_of(m_items, [](const Item& item) { return item.operand.aggregate; });
}

void SelectRewriter::checkAggregates() const {
    if (!isAggregate()) return;
    for (const Item& item : m_items)
        if (!item.operand.bareField.isEmpty()) throw fieldOutsideAggregate(item.operand.bareField);
}

void SelectRewriter::readOrder() {
    if (!m_reader.acceptWord(u"ORDER")) return;
    m_reader.expectWord(u"BY", SyntaxFault::General);
    m_reader.beginClause();
    do readOrderTerm();
    while (m_reader.accept(TokenKind::Comma));
}

void SelectRewriter::readOrderTerm() {
    const Item* item = ordinalItem();
    if (item == nullptr) item = aliasItem();
    const Operand term =
        item != nullptr ? item->operand : ExpressionRewriter(m_reader, m_scope, Aggregates::Refused).read();
    m_order += m_order.isEmpty() ? " ORDER BY " : ", ";
    // The sign keeps the engine from walking along an index, for the reason told at the plan.
    m_order += '+' + collated(term);
    if (m_reader.acceptWord(u"DESC"))
        m_order += " DESC";
    else
        m_reader.acceptWord(u"ASC");
}

bool SelectRewriter::endsOrderTerm(size_t ahead) const {
    const TokenKind kind = m_reader.peek(ahead).kind;
    return kind == TokenKind::Comma || kind == TokenKind::End || kind == TokenKind::Semicolon ||
           m_reader.atWord(u"ASC", ahead) || m_reader.atWord(u"DESC", ahead);
}

/// A lone number is the place of a column, counted from 1.
const Item* SelectRewriter::ordinalItem() {
    if (!m_reader.at(TokenKind::NumberLiteral) || !endsOrderTerm(1)) return nullptr;
    const Value& ordinal = m_reader.literal(m_reader.take());
    const bool isPlace = ordinal.kind() == Value::Kind::Long && ordinal.number() >= 1 &&
                         static_cast<size_t>(ordinal.number()) <= m_items.size();
    if (!isPlace) m_reader.fail(SyntaxFault::General);
    m_reusable = false;
    return &m_items[static_cast<size_t>(ordinal.number()) - 1];
}

const Item* SelectRewriter::aliasItem() {
    if (!m_reader.atName() || !endsOrderTerm(1)) return nullptr;
    const size_t place = m_reader.place();
    const QString name = m_reader.takeName(SyntaxFault::General);
    const auto found = std::ranges::find_if(m_items, [&name](const Item& item) {
        return item.hasAlias && item.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found != m_items.end()) return &*found;
    m_reader.moveTo(place);
    return nullptr;
}

QByteArray SelectRewriter::columns() const {
    QByteArrayList columns;
    // Texts that differ in case only are one to DISTINCT.
    for (const Item& item : m_items) columns += m_distinct ? collated(item.operand) : item.operand.sql;
    return columns.join(", ");
}

QByteArray SelectRewriter::sql(const QByteArray& columns) const {
    QByteArrayList tables;
    for (const Source& source : m_scope.sources())
        tables += quotedName(source.table->name) + " AS " + source.alias;
    QByteArray select =
        (m_distinct ? "SELECT DISTINCT " : "SELECT ") + columns + " FROM " + tables.join(", ");
    if (!m_where.isEmpty()) select += " WHERE " + m_where;
    return select + m_order;
}

SelectPlan SelectRewriter::plan() const {
    SelectPlan plan;
    plan.reusable = m_reusable;
    const bool editable = m_scope.sources().size() == 1 && !m_distinct && !isAggregate();
    for (const Item& item : m_items)
        plan.columns.push_back({item.name, item.operand.kind, editable ? item.field : -1});
    if (!editable) {
        plan.sql = sql(columns());
        return plan;
    }
    const Source& source = m_scope.sources().front();
    plan.editable = source.table;
    plan.sql = sql(source.alias + ".rowid, " + columns());
    // Walking along an index, the cursor would meet a row again whose place in it a change has moved ahead.
    // In the order of the keys it cannot.
    if (m_order.isEmpty()) plan.sql += " ORDER BY " + source.alias + ".rowid";
    return plan;
}

const Item& SelectRewriter::onlyItem() const {
    if (m_items.size() != 1) throw tooManyColumns();
    return m_items.front();
}

Operand SelectRewriter::value() const {
    const Item& item = onlyItem();
    Operand result{.sql = {}, .kind = item.operand.kind};
    const QByteArray single = sqlname::singleValue;
    if (isAggregate())
        result.sql = sql(columns());
    else if (m_distinct)
        result.sql = "SELECT " + single + "(w) FROM (" + sql(columns() + " AS w") + ')';
    else
        result.sql = sql(single + '(' + columns() + ')');
    result.sql = '(' + result.sql + ')';
    return result;
}

Operand SelectRewriter::list() const {
    onlyItem();
    return {.sql = sql(columns()), .kind = m_items.front().operand.kind};
}

void requireEnd(TokenReader& reader) {
    if (reader.at(TokenKind::Comma)) reader.fail(SyntaxFault::Comma);
    const bool ended = reader.accept(TokenKind::Semicolon);
    if (!reader.at(TokenKind::End)) reader.fail(ended ? SyntaxFault::Ending : SyntaxFault::Operator);
}

SelectRewriter readSubselect(TokenReader& reader, const Scope& outer) {
    const TokenReader::Level level(reader);
    SelectRewriter select(reader, &outer);
    select.read();
    return select;
}

} // namespace

SelectPlan rewriteSelect(QStringView source, const LexedStatement& statement) {
    // Many times what a screen can put together, and little enough to be refused in no time.
    constexpr size_t mostTokens = 10'000;
    if (statement.tokens.size() > mostTokens) throw tooComplex();
    TokenReader reader(source, statement);
    SelectRewriter select(reader, nullptr);
    select.read();
    select.readOrder();
    requireEnd(reader);
    return select.plan();
}

Operand readValueSelect(TokenReader& reader, const Scope& outer) {
    return readSubselect(reader, outer).value();
}

Operand readListSelect(TokenReader& reader, const Scope& outer) {
    return readSubselect(reader, outer).list();
}

QByteArray readExistsSelect(TokenReader& reader, const Scope& outer) {
    return readSubselect(reader, outer).sql("1");
}

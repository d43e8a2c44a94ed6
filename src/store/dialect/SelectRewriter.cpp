#include "SelectRewriter.h"

#include "SqlNames.h"

#include <algorithm>

namespace dialect {

namespace {

/// Walks over the tokens of one statement.
class TokenReader {
public:
    TokenReader(QStringView source, const LexedStatement& statement)
        : m_source(source)
        , m_statement(statement) {}

    const Token& peek() const { return m_statement.tokens[m_place]; }
    bool at(TokenKind kind) const { return peek().kind == kind; }
    bool atWord(QStringView word) const {
        return at(TokenKind::Name) && text().compare(word, Qt::CaseInsensitive) == 0;
    }
    /// Whether the token is a name and none of the language's own words.
    bool atName() const {
        constexpr QStringView words[] = {u"AND", u"FROM", u"LIKE", u"OR", u"SELECT", u"WHERE"};
        const auto isHere = [this](QStringView word) { return atWord(word); };
        return at(TokenKind::Name) && std::ranges::none_of(words, isHere);
    }

    bool accept(TokenKind kind) { return passIf(at(kind)); }
    bool acceptWord(QStringView word) { return passIf(atWord(word)); }
    /// The text of the token. Error 3075 unless it is wanted.
    QString take(bool isWanted) {
        QString taken = text().toString();
        expect(passIf(isWanted));
        return taken;
    }
    QString takeName() { return take(atName()); }
    const Value& takeLiteral() {
        return m_statement.literals[static_cast<size_t>(m_statement.tokens[m_place++].literal)];
    }
    /// Error 3075 if what should be here is not.
    void expect(bool isHere) const {
        if (isHere) return;
        fail(at(TokenKind::Comma) ? RuntimeError::misplacedComma : RuntimeError::operatorExpected);
    }

    /// Error 3075 for a statement so deep that it might exhaust the stack.
    void openBracket() {
        constexpr int deepest = 10;
        expect(accept(TokenKind::Open));
        if (++m_depth > deepest) fail(RuntimeError::badExpression);
    }
    void closeBracket() {
        expect(accept(TokenKind::Close));
        --m_depth;
    }

    /// Errors quote the statement from here on.
    void beginClause() { m_clause = peek().start; }
    [[noreturn]] void fail(const RuntimeError::Kind& fault) const {
        throw syntaxError(fault, m_source.sliced(m_clause));
    }

private:
    QStringView text() const { return m_source.sliced(peek().start, peek().length); }
    /// The End token is never passed.
    bool passIf(bool isWanted) {
        if (isWanted && !at(TokenKind::End)) ++m_place;
        return isWanted;
    }

    QStringView m_source;
    const LexedStatement& m_statement;
    size_t m_place = 0;
    qsizetype m_clause = 0;
    int m_depth = 0;
};

/// A table in a FROM clause and its name in the statement.
struct Source {
    const TableSpec* table;
    QString name;
};

/// A field as a statement names it, alone or behind the name of its table.
struct FieldName {
    QString source;
    QString field;
};

/// A column before the tables are known.
struct Item {
    QString function; ///< empty for a field
    FieldName field;
};

struct Column {
    QByteArray sql;
    ResultColumn result;
};

struct Operand {
    QByteArray sql;
    FieldKind kind;
};

Column columnOf(const Source& source, int field) {
    const FieldSpec& spec = source.table->fields[static_cast<size_t>(field)];
    return {quotedName(source.name) + '.' + quotedName(spec.name), {spec.name.toString(), spec.kind, field}};
}

bool isNumber(FieldKind kind) { return kind != FieldKind::Text && kind != FieldKind::Boolean; }

void requireAlike(bool areAlike) {
    if (!areAlike) throw runtimeError(RuntimeError::criteriaDiffer);
}

FieldKind literalKind(const Value& value) {
    if (value.kind() == Value::Kind::Text) return FieldKind::Text;
    return value.kind() == Value::Kind::Date ? FieldKind::Date : FieldKind::Double;
}

/// Reads and rewrites one SELECT, up to its end or the bracket behind it.
class SelectRewriter {
public:
    explicit SelectRewriter(TokenReader& reader)
        : m_reader(reader) {
        read();
    }

    SelectPlan plan() const;
    /// The SELECT as a value, which is Null if no row is found.
    Operand value() const;

private:
    void read();
    Item readItem();
    FieldName readFieldName();
    void readSource();
    QByteArray readCondition();
    QByteArray readConjunction();
    QByteArray readComparison();
    Operand readOperand();
    Operand readLiteral(bool isNegative);

    Column resolve(const FieldName& name) const;
    void addAllFields();
    void addItem(const Item& item);
    Column aggregate(const QByteArray& function, const Column& field) const;
    QByteArray sql(const QByteArray& values) const;

    TokenReader& m_reader;
    std::vector<Source> m_sources;
    std::vector<Column> m_columns;
    QByteArray m_condition;
    bool m_isAggregate = false;
};

void SelectRewriter::read() {
    m_reader.expect(m_reader.acceptWord(u"SELECT"));
    std::vector<Item> items;
    const bool isAll = m_reader.accept(TokenKind::Star);
    if (!isAll) {
        do items.push_back(readItem());
        while (m_reader.accept(TokenKind::Comma));
        m_isAggregate = !items.front().function.isEmpty();
    }
    m_reader.expect(m_reader.acceptWord(u"FROM"));
    do readSource();
    while (m_reader.accept(TokenKind::Comma));
    if (isAll) addAllFields();
    for (const Item& item : items) addItem(item);
    if (!m_reader.acceptWord(u"WHERE")) return;
    m_reader.beginClause();
    m_condition = readCondition();
}

Item SelectRewriter::readItem() {
    const QString name = m_reader.takeName();
    if (m_reader.accept(TokenKind::Dot)) return {{}, {name, m_reader.takeName()}};
    if (!m_reader.accept(TokenKind::Open)) return {{}, {{}, name}};
    const FieldName argument = readFieldName();
    m_reader.expect(m_reader.accept(TokenKind::Close));
    return {name.toUpper(), argument};
}

FieldName SelectRewriter::readFieldName() {
    const QString name = m_reader.takeName();
    if (m_reader.accept(TokenKind::Dot)) return {name, m_reader.takeName()};
    return {{}, name};
}

void SelectRewriter::readSource() {
    // Far beyond any screen's statements, and below SQLite's own limit.
    constexpr size_t mostTables = 32;
    const QString tableName = m_reader.takeName();
    const TableSpec* table = findTable(tableName);
    if (table == nullptr) throw runtimeError(RuntimeError::tableNotFound, tableName);
    const QString name = m_reader.atName() ? m_reader.takeName() : tableName;
    const auto hasName = [&](const Source& source) {
        return source.name.compare(name, Qt::CaseInsensitive) == 0;
    };
    if (std::ranges::any_of(m_sources, hasName) || m_sources.size() == mostTables)
        m_reader.fail(RuntimeError::badExpression);
    m_sources.push_back({table, name});
}

/// A name that is no field is taken for a parameter that nobody gave.
Column SelectRewriter::resolve(const FieldName& name) const {
    std::vector<Column> found;
    for (const Source& source : m_sources) {
        if (!name.source.isEmpty() && name.source.compare(source.name, Qt::CaseInsensitive) != 0) continue;
        const int field = source.table->fieldIndex(name.field);
        if (field >= 0) found.push_back(columnOf(source, field));
    }
    if (found.empty()) throw runtimeError(RuntimeError::missingParameter, QStringLiteral("1"));
    if (found.size() > 1) m_reader.fail(RuntimeError::badExpression);
    return found.front();
}

void SelectRewriter::addAllFields() {
    for (const Source& source : m_sources)
        for (int field = 0; field < static_cast<int>(source.table->fields.size()); ++field)
            m_columns.push_back(columnOf(source, field));
}

void SelectRewriter::addItem(const Item& item) {
    if (item.function.isEmpty() == m_isAggregate) m_reader.fail(RuntimeError::badExpression);
    const Column field = resolve(item.field);
    m_columns.push_back(m_isAggregate ? aggregate(item.function.toLatin1(), field) : field);
}

Column SelectRewriter::aggregate(const QByteArray& function, const Column& field) const {
    FieldKind kind = FieldKind::Long;
    if (function != "COUNT") {
        if (function != "SUM" && function != "MIN" && function != "MAX")
            m_reader.fail(RuntimeError::badExpression);
        requireAlike(isNumber(field.result.kind));
        const bool isWhole = function == "SUM" && field.result.kind != FieldKind::Double;
        kind = isWhole ? FieldKind::Number : field.result.kind;
    }
    // An aggregate has no name of its own.
    const QString name = QStringLiteral("Expr%1").arg(1000 + m_columns.size());
    return {function + '(' + field.sql + ')', {name, kind, -1}};
}

QByteArray SelectRewriter::readCondition() {
    QByteArray condition = readConjunction();
    while (m_reader.acceptWord(u"OR")) condition += " OR " + readConjunction();
    return condition;
}

QByteArray SelectRewriter::readConjunction() {
    QByteArray conjunction = readComparison();
    while (m_reader.acceptWord(u"AND")) conjunction += " AND " + readComparison();
    return conjunction;
}

QByteArray SelectRewriter::readComparison() {
    if (m_reader.at(TokenKind::Open)) {
        m_reader.openBracket();
        const QByteArray condition = readCondition();
        m_reader.closeBracket();
        return '(' + condition + ')';
    }
    const FieldName name = readFieldName();
    const bool isLike = m_reader.acceptWord(u"LIKE");
    const QByteArray sign =
        isLike ? QByteArray() : m_reader.take(m_reader.at(TokenKind::Comparison)).toLatin1();
    const Column left = resolve(name);
    const Operand right = readOperand();
    const bool isText = left.result.kind == FieldKind::Text;
    requireAlike(isText == (right.kind == FieldKind::Text) && (isText || !isLike));
    requireAlike(isNumber(left.result.kind) == isNumber(right.kind));
    if (isLike) return QByteArray(sqlname::like) + '(' + left.sql + ", " + right.sql + ')';
    const QByteArray collation = isText ? QByteArray(" COLLATE ") + sqlname::textCollation : QByteArray();
    return left.sql + collation + ' ' + sign + ' ' + right.sql;
}

Operand SelectRewriter::readOperand() {
    if (m_reader.at(TokenKind::Open)) {
        m_reader.openBracket();
        const SelectRewriter inner(m_reader);
        m_reader.closeBracket();
        return inner.value();
    }
    const bool isNegative = m_reader.accept(TokenKind::Minus);
    if (m_reader.at(TokenKind::Literal) || isNegative) return readLiteral(isNegative);
    if (m_reader.acceptWord(u"TRUE")) return {"1", FieldKind::Boolean};
    if (m_reader.acceptWord(u"FALSE")) return {"0", FieldKind::Boolean};
    const Column field = resolve(readFieldName());
    return {field.sql, field.result.kind};
}

Operand SelectRewriter::readLiteral(bool isNegative) {
    m_reader.expect(m_reader.at(TokenKind::Literal));
    const QByteArray parameter = '?' + QByteArray::number(m_reader.peek().literal + 1);
    const FieldKind kind = literalKind(m_reader.takeLiteral());
    if (!isNegative) return {parameter, kind};
    requireAlike(kind == FieldKind::Double);
    return {'-' + parameter, kind};
}

QByteArray SelectRewriter::sql(const QByteArray& values) const {
    QByteArrayList tables;
    for (const Source& source : m_sources)
        tables += quotedName(source.table->name) + " AS " + quotedName(source.name);
    const QByteArray select = "SELECT " + values + " FROM " + tables.join(", ");
    return m_condition.isEmpty() ? select : select + " WHERE " + m_condition;
}

SelectPlan SelectRewriter::plan() const {
    SelectPlan plan;
    QByteArrayList values;
    for (const Column& column : m_columns) {
        plan.columns.push_back(column.result);
        values += column.sql;
    }
    plan.sql = sql(values.join(", "));
    if (m_sources.size() > 1 || m_isAggregate) return plan;
    plan.editable = m_sources.front().table;
    // In the order of an index, a row that a change has moved ahead would be met again. Row numbers prevent
    // that.
    const QByteArray row = quotedName(m_sources.front().name) + ".rowid";
    plan.sql = sql(row + ", " + values.join(", ")) + " ORDER BY " + row;
    return plan;
}

Operand SelectRewriter::value() const {
    if (m_columns.size() != 1 || m_isAggregate) m_reader.fail(RuntimeError::badExpression);
    const auto& [sql, column] = m_columns.front();
    const QByteArray only =
        QByteArray("CASE WHEN COUNT(*) > 1 THEN ") + sqlname::tooManyRows + "() ELSE MIN(" + sql + ") END";
    return {'(' + this->sql(only) + ')', column.kind};
}

} // namespace

SelectPlan rewriteSelect(QStringView source, const LexedStatement& statement) {
    TokenReader reader(source, statement);
    const SelectRewriter select(reader);
    reader.expect(reader.at(TokenKind::End));
    return select.plan();
}

} // namespace dialect

#include "database/connection.h"
#include "database/translation.h"

namespace jxc {

using Form = StatementTree::Form;

Translation StatementWriter::Write(StatementTree& tree, Purpose purpose) {
    Translation translation;
    if (purpose == Purpose::EditRows) {
        translation.sql = EditableSelect(tree);
        translation.table = tree.select->from->table;
    } else {
        switch (tree.form) {
        case Form::Select:
            translation.sql = Select(*tree.select);
            break;
        case Form::Insert:
            translation.sql = Insert(tree);
            break;
        case Form::Update:
            translation.sql = tree.from ? UpdateFrom(tree) : Update(tree);
            break;
        case Form::Delete:
            translation.sql = Delete(tree);
            break;
        case Form::AddColumn:
            translation.sql = AddColumn(tree);
            break;
        }
    }
    translation.givesRows = tree.form == Form::Select;
    translation.changesSchema = tree.form == Form::AddColumn;
    translation.parameters = std::move(parameters_);
    return translation;
}

std::string StatementWriter::EditableSelect(StatementTree& tree) {
    const bool oneTable = tree.form == Form::Select && tree.select->from &&
                          tree.select->from->form == Source::Form::Table && tree.select->groupBy.empty() &&
                          tree.select->top.empty();
    if (!oneTable)
        throw DatabaseError("SQL 语句有误：只有单表的 Select 才能用于修改记录。");
    for (const SelectTree::Item& item : tree.select->items)
        if (item.value->form != Node::Form::Star && item.value->form != Node::Form::Column)
            throw DatabaseError("SQL 语句有误：用于修改记录的 Select 只能含有字段。");
    tree.select->distinct = false; // with its address every row is distinct
    return Select(*tree.select, {}, tree.select->from->alias + "." + RowAddress());
}

std::string StatementWriter::Select(SelectTree& select, const Targets& targets,
                                    const std::string& firstColumn) {
    if (select.from)
        Simplify(select.from, select.where);
    OpenScope(select.from.get());
    NoteShared(select);
    std::string sql = select.distinct ? "select distinct " : "select ";
    if (!firstColumn.empty())
        sql += firstColumn + ", ";
    sql += Items(select, targets);
    if (select.from)
        sql += " from " + From(*select.from);
    if (select.where)
        sql += " where " + Expression(*select.where);
    if (!select.groupBy.empty())
        sql += Grouping(select);
    if (select.having)
        sql += " having " + Expression(*select.having);
    const char* separator = " order by ";
    for (const SelectTree::Order& order : select.orderBy) {
        if (IsLifted(Bare(*order.value)))
            continue; // a value that all rows share sorts nothing
        sql += separator + Ordered(Expression(*order.value), order.descending);
        separator = ", ";
    }
    if (!select.top.empty())
        sql += " limit " + select.top;
    shared_.pop_back();
    CloseScope();
    return sql;
}

void StatementWriter::NoteShared(const SelectTree& select) {
    std::map<std::string, std::string>& shared = shared_.emplace_back();
    const auto note = [&](const Node& node) {
        const std::string shape = ShapeOf(node);
        if (!IsLifted(Bare(node)) && shape.find('?') != std::string::npos)
            shared[shape];
    };
    for (const NodePtr& group : select.groupBy)
        note(*group);
    for (const SelectTree::Order& order : select.orderBy)
        note(*order.value);
}

// A value that all rows share makes no groups, but a statement that groups by nothing else has no row where
// none is found.
std::string StatementWriter::Grouping(const SelectTree& select) {
    std::string sql;
    for (const NodePtr& group : select.groupBy)
        if (!IsLifted(Bare(*group)))
            sql.append(sql.empty() ? "" : ", ").append(Expression(*group));
    return " group by " + (sql.empty() ? "1 + 0" : sql);
}

std::string StatementWriter::ShapeOf(const Node& node) const {
    std::string shape = std::to_string(static_cast<int>(node.form)) + node.text;
    if (node.form == Node::Form::Column)
        shape = LowerCase(node.text) + "." + LowerCase(TableOf(node));
    if (IsLifted(node))
        shape = "?" + std::to_string(node.literal);
    shape += std::to_string(node.length) + (node.negated ? "-" : "") + (node.distinct ? "d" : "");
    if (node.select)
        shape += "@" + std::to_string(reinterpret_cast<std::uintptr_t>(node.select.get()));
    shape += "(";
    for (const NodePtr& part : node.parts)
        shape += ShapeOf(*part) + ",";
    return shape + ")";
}

std::string StatementWriter::Items(SelectTree& select, const Targets& targets) {
    bool byPosition = targets.size() == select.items.size();
    for (const SelectTree::Item& item : select.items)
        byPosition = byPosition && item.value->form != Node::Form::Star;
    std::string sql;
    for (size_t i = 0; i < select.items.size(); ++i) {
        const SelectTree::Item& item = select.items[i];
        if (i > 0)
            sql += ", ";
        sql += Assigned(*item.value, byPosition ? targets[i] : nullptr);
        if (!item.alias.empty())
            sql += " as " + item.alias;
    }
    return sql;
}

std::string StatementWriter::From(const Source& source) {
    switch (source.form) {
    case Source::Form::Table:
        return source.table == source.alias ? source.table : source.table + " as " + source.alias;
    case Source::Form::Subselect:
        return Enclosed("(", Select(*source.select)) + " as " + source.alias;
    case Source::Form::List:
        return Joined(*source.left) + ", " + Joined(*source.right);
    case Source::Form::Join:
        break;
    }
    const char* join = source.join == Source::JoinKind::Left    ? " left join "
                       : source.join == Source::JoinKind::Right ? " right join "
                                                                : " inner join ";
    const bool chain = source.left->form == Source::Form::Join;
    std::string sql = (chain ? From(*source.left) : Joined(*source.left)) + join + Joined(*source.right);
    return sql + " on " + Expression(*source.on);
}

// A join within a join stands in parentheses.
std::string StatementWriter::Joined(const Source& source) {
    return source.form == Source::Form::Join || source.form == Source::Form::List
               ? Enclosed("(", From(source))
               : From(source);
}

std::string StatementWriter::Insert(StatementTree& tree) {
    std::string sql = "insert into " + tree.table;
    Targets targets;
    const char* separator = " (";
    for (const std::string& column : tree.columns) {
        sql += separator + column;
        separator = ", ";
        targets.push_back(tree.def ? FindField(*tree.def, column) : nullptr);
    }
    if (!tree.columns.empty())
        sql += ")";
    if (tree.columns.empty() && tree.def)
        for (const FieldDef& field : tree.def->fields)
            targets.push_back(&field);
    if (tree.select)
        return sql + " " + Select(*tree.select, targets);
    if (tree.values.size() != targets.size() && tree.def)
        throw DatabaseError("SQL 语句有误：Insert 的字段数与值数不符。");
    separator = " values (";
    OpenScope(nullptr);
    for (size_t i = 0; i < tree.values.size(); ++i) {
        sql += separator + Assigned(*tree.values[i], i < targets.size() ? targets[i] : nullptr);
        separator = ", ";
    }
    CloseScope();
    return sql + ")";
}

std::string StatementWriter::Update(StatementTree& tree) {
    OpenScope(tree);
    std::string sql = "update " + tree.table + (tree.alias.empty() ? "" : " as " + tree.alias);
    const char* separator = " set ";
    for (const StatementTree::Assignment& assignment : tree.assignments) {
        const FieldDef* target = tree.def ? FindField(*tree.def, assignment.column) : nullptr;
        sql += separator + assignment.column + " = " + Assigned(*assignment.value, target);
        separator = ", ";
    }
    if (tree.where)
        sql += " where " + Expression(*tree.where);
    CloseScope();
    return sql;
}

// update T as changed set f = found.v0 from (select a.<row> as r, max(..) as v0 from .. where .. group by
// a.<row>) as found where changed.<row> = found.r. Several matches of a row give the largest value.
std::string StatementWriter::UpdateFrom(StatementTree& tree) {
    Simplify(tree.from, tree.where);
    OpenScope(tree.from.get());
    const std::string row = tree.alias + "." + RowAddress();
    std::string assignments, values;
    for (size_t i = 0; i < tree.assignments.size(); ++i) {
        const StatementTree::Assignment& assignment = tree.assignments[i];
        const FieldDef* target = tree.def ? FindField(*tree.def, assignment.column) : nullptr;
        const std::string name = std::string("v").append(std::to_string(i));
        assignments += (i > 0 ? ", " : "") + assignment.column + " = found." + name;
        values += ", max(" + Assigned(*assignment.value, target) + ") as " + name;
    }
    std::string found = "select " + row + " as r" + values + " from " + From(*tree.from);
    if (tree.where)
        found += " where " + Expression(*tree.where);
    found += " group by " + row;
    CloseScope();
    std::string sql = "update ";
    sql += tree.table + " as changed set " + assignments + " from " + Enclosed("(", found);
    return sql + " as found where changed." + RowAddress() + " = found.r";
}

std::string StatementWriter::Delete(StatementTree& tree) {
    OpenScope(tree);
    std::string sql = "delete from " + tree.table + (tree.alias.empty() ? "" : " as " + tree.alias);
    if (tree.where)
        sql += " where " + Expression(*tree.where);
    CloseScope();
    return sql;
}

std::string StatementWriter::AddColumn(const StatementTree& tree) {
    return "alter table " + tree.table + " add column " + tree.columns[0] + " " +
           ColumnType(tree.columnIsText);
}

void StatementWriter::OpenScope(const Source* source) {
    scopes_.emplace_back();
    if (source)
        CollectTables(*source, scopes_.back());
}

void StatementWriter::OpenScope(const StatementTree& tree) {
    scopes_.push_back({{tree.alias.empty() ? tree.table : tree.alias, tree.def}});
}

void StatementWriter::CollectTables(const Source& source, std::vector<NamedTable>& tables) {
    if (source.left) {
        CollectTables(*source.left, tables);
        CollectTables(*source.right, tables);
    } else {
        tables.push_back({source.alias, source.def});
    }
}

} // namespace jxc

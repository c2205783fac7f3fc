#include "database/recordset.h"

#include "base/text.h"
#include "database/engine.h"
#include "database/field_values.h"

namespace jxc {

Recordset::Recordset(Connection& connection, std::string_view sql, Access access) : connection_(connection) {
    if (access == Access::Read)
        rows_ = connection_.Query(sql);
    else
        ReadRows(sql);
}

// The rows' addresses stand in the first column.
void Recordset::ReadRows(std::string_view sql) {
    rows_ = connection_.QueryRows(sql, tableName_);
    rowChanges_ = connection_.RowChanges();
    firstField_ = 1;
    table_ = FindTable(tableName_);
    if (!table_)
        throw DatabaseError("数据库没有表 " + tableName_ + "。");
    fields_.resize(FieldCount());
    isAssigned_.resize(FieldCount());
}

void Recordset::MoveNext() {
    if (!assigned_.empty() || adding_)
        throw std::logic_error("记录尚未存盘。");
    ++row_;
}

void Recordset::MoveTo(size_t row) {
    if (!assigned_.empty() || adding_)
        throw std::logic_error("记录尚未存盘。");
    row_ = row;
}

// Of columns with one name the first counts. Row after row the same fields are taken in the same order: the
// search begins at the field that followed the last one before.
size_t Recordset::OrdinalOf(std::string_view name) const {
    const size_t count = FieldCount();
    follower_.resize(count + 1, 0);
    const auto matches = [&](size_t ordinal) {
        return FieldName(ordinal) == name || EqualsNoCase(FieldName(ordinal), name);
    };
    size_t& guess = follower_[last_];
    if (!(table_ && guess < count && matches(guess))) {
        guess = 0;
        while (guess < count && !matches(guess))
            ++guess;
        if (guess == count)
            throw DatabaseError("没有字段 " + std::string(name) + "。");
    }
    last_ = guess;
    return last_;
}

void Recordset::RequireRow() const {
    if (!adding_ && AtEnd())
        throw DatabaseError("没有当前记录。");
}

const Value& Recordset::Field(size_t ordinal) const {
    RequireRow();
    if (ordinal >= FieldCount())
        throw std::logic_error("没有第 " + std::to_string(ordinal) + " 个字段。");
    return adding_ ? newRow_[ordinal] : rows_.At(row_, firstField_ + ordinal);
}

Value& Recordset::Cell(size_t ordinal) {
    return adding_ ? newRow_[ordinal] : rows_.cells[row_ * rows_.names.size() + firstField_ + ordinal];
}

const FieldDef& Recordset::Definition(size_t ordinal) {
    if (!table_)
        throw std::logic_error("该记录集是只读的。");
    if (ordinal >= fields_.size())
        throw std::logic_error("没有第 " + std::to_string(ordinal) + " 个字段。");
    if (!fields_[ordinal])
        fields_[ordinal] = FindField(*table_, FieldName(ordinal));
    if (!fields_[ordinal])
        throw DatabaseError("没有字段 " + FieldName(ordinal) + "。");
    return *fields_[ordinal];
}

void Recordset::AddNew() {
    if (!table_)
        throw std::logic_error("该记录集是只读的。");
    if (!assigned_.empty())
        throw std::logic_error("记录尚未存盘。");
    adding_ = true;
    newRow_.assign(FieldCount(), Value());
}

void Recordset::Set(std::string_view name, Value value) {
    Set(OrdinalOf(name), std::move(value));
}

void Recordset::Set(size_t ordinal, Value value) {
    const FieldDef& field = Definition(ordinal);
    RequireRow();
    if (assigned_.empty() && !adding_ && MustCompare(connection_.EngineInUse())) {
        const auto row = rows_.cells.begin() + static_cast<std::ptrdiff_t>(row_ * rows_.names.size());
        before_.assign(row + 1, row + static_cast<std::ptrdiff_t>(rows_.names.size()));
    }
    Cell(ordinal) = FieldValue(field, std::move(value));
    if (!isAssigned_[ordinal])
        assigned_.push_back(ordinal);
    isAssigned_[ordinal] = true;
}

void Recordset::ForgetAssigned() {
    for (size_t ordinal : assigned_)
        isAssigned_[ordinal] = false;
    assigned_.clear();
}

std::vector<std::string> Recordset::NamesToWrite() const {
    std::vector<std::string> names;
    names.reserve(assigned_.size());
    for (size_t ordinal : assigned_)
        names.push_back(FieldName(ordinal));
    return names;
}

std::vector<Value> Recordset::ValuesToWrite() {
    std::vector<Value> values;
    values.reserve(assigned_.size() + 1);
    for (size_t ordinal : assigned_)
        if (adding_)
            values.push_back(std::move(newRow_[ordinal]));
        else
            values.push_back(Cell(ordinal));
    return values;
}

// An engine that moves rows as they change may not have told the new place yet.
std::shared_ptr<Value> Recordset::AddressToWrite() {
    RequireRow();
    addresses_.resize(RecordCount());
    std::shared_ptr<Value>& address = addresses_[row_];
    if (!address) {
        if (AddressAsRead().IsNull())
            throw std::logic_error("该记录已经删除。");
        address = std::make_shared<Value>(AddressAsRead());
    }
    if (address->IsNull())
        connection_.Flush();
    return address;
}

void Recordset::Update() {
    if (!table_)
        throw std::logic_error("该记录集是只读的。");
    Engine& engine = connection_.EngineInUse();
    if (adding_) {
        if (assigned_.empty())
            assigned_.push_back(0);
        const std::vector<Value> values = ValuesToWrite();
        if (insertText_.empty() || inserted_ != assigned_) {
            insertText_ = engine.InsertText(tableName_, NamesToWrite());
            inserted_ = assigned_;
        }
        adding_ = false;
        ForgetAssigned();
        connection_.RunOnRow(insertText_, values, nullptr);
        return;
    }
    if (!assigned_.empty())
        ChangeRow(engine);
}

// Inside a transaction nobody else writes. Outside one, an engine whose rows keep their place when they
// change must compare the row with what was read.
bool Recordset::MustCompare(const Engine& engine) const {
    return !engine.MovesChangedRows() && !connection_.InTransaction();
}

// Inside a transaction a row is the same row after another statement of ours has changed it. Outside one that
// change may be another user's.
bool Recordset::MustFollow() const {
    return connection_.InTransaction() && connection_.RowChanges() != rowChanges_;
}

void Recordset::RunOnRow(const std::string& text, std::span<const Value> values,
                         const std::shared_ptr<Value>& address) {
    connection_.RunOnRow(text, values, address);
    ++rowChanges_;
}

void Recordset::ChangeRow(Engine& engine) {
    const std::shared_ptr<Value> address = AddressToWrite();
    const bool compare = MustCompare(engine);
    std::vector<Value> values = ValuesToWrite();
    if (compare)
        values.insert(values.end(), before_.begin(), before_.end());
    values.push_back(*address);
    const bool follow = MustFollow();
    if (changeText_.empty() || changed_ != assigned_ || compare || following_ != follow) {
        const std::vector<std::string> unchanged =
            compare ? std::vector<std::string>(rows_.names.begin() + 1, rows_.names.end())
                    : std::vector<std::string>();
        changeText_ = engine.ChangeText(tableName_, NamesToWrite(), unchanged, follow);
        changed_ = assigned_;
        following_ = follow;
    }
    ForgetAssigned();
    RunOnRow(changeText_, values, address);
    if (compare)
        changeText_.clear();
}

void Recordset::Delete() {
    if (!table_)
        throw std::logic_error("该记录集是只读的。");
    const std::shared_ptr<Value> address = AddressToWrite();
    const Value values[] = {*address};
    ForgetAssigned();
    RunOnRow(connection_.EngineInUse().DeleteText(tableName_, MustFollow()), values, address);
    addresses_[row_].reset();
    AddressAsRead() = Value();
}

} // namespace jxc

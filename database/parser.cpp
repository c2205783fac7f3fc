#include "database/parser.h"

#include "database/parser_base.h"

namespace jxc {

namespace {

class StatementParser : public ExpressionParser {
  public:
    using ExpressionParser::ExpressionParser;

    StatementTree Statement() {
        StatementTree tree;
        if (AtWord("select")) {
            tree.form = StatementTree::Form::Select;
            tree.select = Select();
        } else if (TakeWord("insert")) {
            Insert(tree);
        } else if (TakeWord("update")) {
            Update(tree);
        } else if (TakeWord("delete")) {
            Delete(tree);
        } else if (TakeWord("alter")) {
            AddColumn(tree);
        } else {
            Refuse();
        }
        if (!AtEnd())
            Refuse();
        return tree;
    }

  private:
    std::unique_ptr<SelectTree> Select() override {
        const Nesting nesting(*this, kSubselect);
        auto select = std::make_unique<SelectTree>();
        ExpectWord("select");
        select->distinct = TakeWord("distinct");
        if (TakeWord("top")) {
            if (Here().kind != TokenKind::Integer)
                Refuse();
            select->top = Take().text;
        }
        do
            select->items.push_back(Item());
        while (TakeSymbol(","));
        if (TakeWord("from"))
            select->from = Sources();
        if (TakeWord("where"))
            select->where = Condition();
        if (TakeWord("group")) {
            ExpectWord("by");
            do
                select->groupBy.push_back(Listed());
            while (TakeSymbol(","));
        }
        if (TakeWord("having"))
            select->having = Condition();
        if (TakeWord("order"))
            OrderBy(*select);
        return select;
    }

    SelectTree::Item Item() {
        SelectTree::Item item;
        item.value = Condition();
        if (TakeWord("as"))
            item.alias = ExpectName();
        else if (Here().kind == TokenKind::Word && !AtWord("from"))
            item.alias = ExpectName();
        return item;
    }

    // A date alone neither groups nor sorts.
    NodePtr Listed() {
        if (Here().kind == TokenKind::Date)
            Refuse();
        return Sum();
    }

    void OrderBy(SelectTree& select) {
        ExpectWord("by");
        do {
            SelectTree::Order order;
            order.value = Listed();
            order.descending = TakeWord("desc");
            if (!order.descending)
                TakeWord("asc");
            select.orderBy.push_back(std::move(order));
        } while (TakeSymbol(","));
    }

    SourcePtr Sources() {
        SourcePtr left = JoinChain();
        while (TakeSymbol(",")) {
            auto list = std::make_unique<Source>();
            list->form = Source::Form::List;
            list->left = std::move(left);
            list->right = JoinChain();
            left = std::move(list);
        }
        return left;
    }

    bool AtJoin() const {
        return AtWord("join") || ((AtWord("left") || AtWord("right") || AtWord("inner")) &&
                                  (AtWord("join", 1) || (AtWord("outer", 1) && AtWord("join", 2))));
    }

    SourcePtr JoinChain() {
        SourcePtr left = SingleSource();
        while (AtJoin()) {
            auto join = std::make_unique<Source>();
            join->form = Source::Form::Join;
            if (TakeWord("left"))
                join->join = Source::JoinKind::Left;
            else if (TakeWord("right"))
                join->join = Source::JoinKind::Right;
            else
                TakeWord("inner");
            TakeWord("outer");
            ExpectWord("join");
            join->left = std::move(left);
            join->right = SingleSource();
            ExpectWord("on");
            join->on = Condition();
            left = std::move(join);
        }
        return left;
    }

    SourcePtr SingleSource() {
        auto source = std::make_unique<Source>();
        if (!TakeSymbol("(")) {
            source->table = ExpectName();
            source->def = FindTable(source->table);
            source->alias = Alias(source->table);
            return source;
        }
        const Nesting nesting(*this, kParenthesis);
        if (!AtWord("select")) {
            SourcePtr inner = Sources();
            ExpectSymbol(")");
            return inner;
        }
        source->form = Source::Form::Subselect;
        source->select = Select();
        ExpectSymbol(")");
        source->alias = Alias("");
        if (source->alias.empty())
            Refuse();
        return source;
    }

    std::string Alias(const std::string& otherwise) {
        if (TakeWord("as"))
            return ExpectName();
        if (Here().kind != TokenKind::Word)
            return otherwise;
        for (const char* reserved : {"where", "left", "right", "inner", "join", "on", "group", "order",
                                     "having", "set", "from", "values", "select", "union", "and", "or"})
            if (AtWord(reserved))
                return otherwise;
        return ExpectName();
    }

    void Insert(StatementTree& tree) {
        tree.form = StatementTree::Form::Insert;
        ExpectWord("into");
        tree.table = ExpectName();
        tree.def = FindTable(tree.table);
        if (TakeSymbol("(")) {
            do
                tree.columns.push_back(ExpectName());
            while (TakeSymbol(","));
            ExpectSymbol(")");
        }
        if (AtWord("select")) {
            tree.select = Select();
            return;
        }
        ExpectWord("values");
        ExpectSymbol("(");
        do
            tree.values.push_back(Sum());
        while (TakeSymbol(","));
        ExpectSymbol(")");
    }

    // Update A [a] Set ..; Update A a,B b Set a.x=b.y ..; Update A Set x=b.y From A a Inner Join B b On ..
    void Update(StatementTree& tree) {
        tree.form = StatementTree::Form::Update;
        SourcePtr named = Sources();
        ExpectWord("set");
        std::string qualifier;
        do
            tree.assignments.push_back(Assignment(qualifier));
        while (TakeSymbol(","));
        if (TakeWord("from")) {
            if (named->form != Source::Form::Table)
                Refuse();
            tree.from = Sources();
            ChooseTarget(tree, *tree.from, named->alias);
        } else if (named->form == Source::Form::Table) {
            tree.table = named->table;
            tree.def = named->def;
            tree.alias = named->alias == named->table ? "" : named->alias;
        } else {
            tree.from = std::move(named);
            ChooseTarget(tree, *tree.from, qualifier);
        }
        if (tree.table.empty())
            throw DatabaseError("SQL 语句有误：Update 没有指明所更新的表。");
        if (TakeWord("where"))
            tree.where = Condition();
    }

    StatementTree::Assignment Assignment(std::string& qualifier) {
        StatementTree::Assignment assignment;
        assignment.column = ExpectName();
        if (TakeSymbol(".")) {
            qualifier = assignment.column;
            assignment.column = ExpectName();
        }
        ExpectSymbol("=");
        assignment.value = Sum();
        return assignment;
    }

    // The source that an update changes: named by its alias, or by its table.
    static void ChooseTarget(StatementTree& tree, const Source& source, std::string_view name) {
        if (source.form == Source::Form::Table) {
            if (tree.table.empty() &&
                (EqualsNoCase(source.alias, name) || EqualsNoCase(source.table, name))) {
                tree.table = source.table;
                tree.alias = source.alias;
                tree.def = source.def;
            }
        } else if (source.left) {
            ChooseTarget(tree, *source.left, name);
            ChooseTarget(tree, *source.right, name);
        }
    }

    void Delete(StatementTree& tree) {
        tree.form = StatementTree::Form::Delete;
        ExpectWord("from");
        tree.table = ExpectName();
        tree.def = FindTable(tree.table);
        tree.alias = Alias("");
        if (TakeWord("where"))
            tree.where = Condition();
    }

    // ALTER TABLE t ADD f Int NULL, ALTER TABLE t ADD f varchar(50) Null
    void AddColumn(StatementTree& tree) {
        tree.form = StatementTree::Form::AddColumn;
        ExpectWord("table");
        tree.table = ExpectName();
        ExpectWord("add");
        tree.columns.push_back(ExpectName());
        if (TakeWord("varchar") || TakeWord("nvarchar")) {
            tree.columnIsText = true;
            ExpectSymbol("(");
            if (Here().kind != TokenKind::Integer)
                Refuse();
            Take();
            ExpectSymbol(")");
        } else {
            ExpectWord("int");
        }
        TakeWord("null");
    }
};

} // namespace

StatementTree ParseStatement(std::span<const Token> tokens) {
    return StatementParser(tokens).Statement();
}

} // namespace jxc

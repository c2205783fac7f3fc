#include "database/join_simplification.h"

#include <set>

#include "base/text.h"

namespace jxc {

namespace {

using Form = Node::Form;
using Aliases = std::set<std::string>; // lower case

// The tables whose absence makes the value of `node` null.
void CollectStrict(const Node& node, Aliases& aliases) {
    switch (node.form) {
    case Form::Column:
        if (!node.qualifier.empty())
            aliases.insert(LowerCase(node.qualifier));
        break;
    case Form::Parens:
    case Form::Negative:
    case Form::Arithmetic:
        for (const NodePtr& part : node.parts)
            CollectStrict(*part, aliases);
        break;
    default:
        break;
    }
}

// The tables that must be there for `condition` to hold.
void CollectRequired(const Node& condition, Aliases& aliases) {
    switch (condition.form) {
    case Form::And:
        for (const NodePtr& part : condition.parts)
            CollectRequired(*part, aliases);
        break;
    case Form::Parens:
        CollectRequired(*condition.parts[0], aliases);
        break;
    case Form::Or: {
        Aliases common;
        CollectRequired(*condition.parts[0], common);
        for (size_t i = 1; i < condition.parts.size() && !common.empty(); ++i) {
            Aliases here;
            CollectRequired(*condition.parts[i], here);
            std::erase_if(common, [&](const std::string& alias) { return !here.contains(alias); });
        }
        aliases.merge(common);
        break;
    }
    case Form::Comparison:
        CollectStrict(*condition.parts[0], aliases);
        CollectStrict(*condition.parts[1], aliases);
        break;
    case Form::Like:
    case Form::Between:
        CollectStrict(*condition.parts[0], aliases);
        break;
    case Form::In:
        if (!condition.negated) // nothing at all is not in an empty list
            CollectStrict(*condition.parts[0], aliases);
        break;
    default:
        break;
    }
}

bool HoldsOneOf(const Source& source, const Aliases& aliases) {
    if (source.left)
        return HoldsOneOf(*source.left, aliases) || HoldsOneOf(*source.right, aliases);
    return aliases.contains(LowerCase(source.alias));
}

// What an inner join demands of a table may make a join below it inner. The optional side of an outer join
// demands nothing of the rest, and is left as it is.
void MakeInner(Source& source, Aliases& required) {
    if (!source.left)
        return;
    const bool isOuter = source.form == Source::Form::Join && source.join != Source::JoinKind::Inner;
    const bool leftIsOptional = source.join == Source::JoinKind::Right;
    if (isOuter && !HoldsOneOf(leftIsOptional ? *source.left : *source.right, required)) {
        MakeInner(leftIsOptional ? *source.right : *source.left, required);
        return;
    }
    if (isOuter)
        source.join = Source::JoinKind::Inner;
    if (source.on)
        CollectRequired(*source.on, required);
    MakeInner(*source.left, required);
    MakeInner(*source.right, required);
}

} // namespace

void MakeJoinsInner(Source& from, const Node& where) {
    Aliases required;
    CollectRequired(where, required);
    size_t known = 0;
    while (known != required.size()) {
        known = required.size();
        MakeInner(from, required);
    }
}

} // namespace jxc

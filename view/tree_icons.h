// Small pictures for the kinds of nodes of trees.
#pragma once

#include <string>

#include <QIcon>

namespace jxc {

inline constexpr int kTreeIconSize = 20; // pixels

// The picture of TreeNode::icon; none for a word that is not known.
QIcon TreeIcon(const std::string& word);

} // namespace jxc

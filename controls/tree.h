// A tree of nodes with keys and captions.
#pragma once

#include <string>
#include <vector>

#include "controls/control.h"

namespace jxc {

struct TreeNode {
    std::string key;
    std::string caption;
    int parent = -1;       // place in the node list, -1 for a root
    std::string icon = {}; // a word for its kind, which a view draws; "" for none
};

struct Tree : Control {
    Tree(Place place, std::string name) : Control(place, std::move(name), ControlKind::Tree) {}

    // Nodes in display order: a node stands behind its parent.
    std::vector<TreeNode> nodes;
    int selected = -1;
    std::function<void(int node)> onSelect;
    std::function<void(int node)> onDoubleClick;
    std::function<void(int node, int onto)> onDrop; // node dragged onto another

    int DepthOf(int node) const {
        int depth = 0;
        for (int at = nodes[static_cast<size_t>(node)].parent; at >= 0;
             at = nodes[static_cast<size_t>(at)].parent)
            ++depth;
        return depth;
    }
    // The node with that caption, or else with that key; -1 when there is none.
    int FindNode(const std::string& captionOrKey) const {
        for (const auto part : {&TreeNode::caption, &TreeNode::key})
            for (size_t i = 0; i < nodes.size(); ++i)
                if (nodes[i].*part == captionOrKey)
                    return static_cast<int>(i);
        return -1;
    }
};

} // namespace jxc

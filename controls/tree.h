// A tree of nodes with keys and captions.
#pragma once

#include <string>
#include <vector>

#include "controls/control.h"

namespace jxc {

struct TreeNode {
    std::string key;
    std::string caption;
    int parent = -1; // place in the node list, -1 for a root
};

struct Tree : Control {
    Tree(Place place, std::string name) : Control(place, std::move(name), ControlKind::Tree) {}

    // Nodes in display order: a node stands behind its parent.
    std::vector<TreeNode> nodes;
    int selected = -1;
    std::function<void(int node)> onSelect;
    std::function<void(int node, int onto)> onDrop; // node dragged onto another

    int DepthOf(int node) const {
        int depth = 0;
        for (int at = nodes[static_cast<size_t>(node)].parent; at >= 0;
             at = nodes[static_cast<size_t>(at)].parent)
            ++depth;
        return depth;
    }
    // The node with that caption; -1 when there is none.
    int FindCaption(const std::string& caption) const {
        for (size_t i = 0; i < nodes.size(); ++i)
            if (nodes[i].caption == caption)
                return static_cast<int>(i);
        return -1;
    }
};

} // namespace jxc

// How a plain window lays a screen out: rows of fields above or beside a grid, and the commands at the foot. A window
// with a layout of its own has a form file instead.
#pragma once

#include <vector>

namespace jxc {

struct Control;
struct Grid;
struct Tabs;
struct Tree;

struct Arrangement {
    // The controls of a row. A field stands behind its caption, or behind the check box or the label before it in the
    // row; ticks, options, labels and buttons without a field follow each other at the row's end.
    using Row = std::vector<Control*>;

    std::vector<Row> above = {}; // over the grid: filters
    Grid* grid = nullptr;        // takes what room there is
    Tree* tree = nullptr;        // the same, for a screen without a grid there
    Tabs* tabs = nullptr;        // pages that take it instead, each laid out as a screen without tabs
    std::vector<Arrangement> pages = {};
    std::vector<Row> fields = {};        // beside the grid, or alone; a grid among them takes the whole row
    std::vector<Control*> commands = {}; // at the left of the foot
    std::vector<Control*> closingCommands = {}; // at its right: what ends the work
    int width = 640, height = 380;

    bool IsEmpty() const { return commands.empty() && closingCommands.empty(); }
    bool IsQuery() const { return !above.empty() && fields.empty(); }
};

} // namespace jxc

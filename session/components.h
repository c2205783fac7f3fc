// Services that the host suite's own components give: a code list editor, a printer of grids and templates, a printer of
// trees, a notice window, and copies of the company. A host puts its own in their place; the ones built in
// work without a window.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "controls/grid.h"
#include "controls/tree.h"

namespace jxc {

// What the code list editor is opened for.
enum class BriefKind {
    ChooseList = 1,  // picks one of the code lists; the answer is its number
    EditEntries = 2, // maintains one list's entries; the answer is the entry chosen
    SelectColumns =
        5, // selects and orders the dictionary's columns of a table; a non-empty answer: they changed
};

class CodeListEditor {
  public:
    virtual ~CodeListEditor() = default;
    // Modal. `table` for SelectColumns, `code` the list for the other kinds. "" when nothing was chosen.
    virtual std::string Edit(const std::string& table, const std::string& code, BriefKind kind) = 0;
};

using FieldList = std::vector<std::string>; // key, value, key, value ...

struct GridPrintJob {
    FieldList header;
    const Grid* grid = nullptr;
    std::string typeName;
    std::string title;
    std::string amount;
};

struct TemplatePrintJob {
    FieldList fields;
    FieldList further;                                        // what a template may name beside them
    std::vector<std::pair<std::string, std::string>> columns; // "<<caption>>" and the field it stands for
    std::vector<std::vector<std::string>> lines;              // one text per column
    std::string layout; // the template's text: session/printing/paper_template.h
    std::string typeName;
    std::string number; // of the document
    int type = 0;
    int mode = 1; // 3 lets the user change the template
    // The template that the company keeps for the type as it was read, nothing without one; the paper of the default, and
    // the default's text on one of PaperSizes().
    std::optional<std::string> own;
    std::string defaultPaper;
    std::function<std::string(const std::string& paper)> defaultOn;
    bool atOnce = false; // on the printer that was used last for the type, without asking
};

class Printer {
  public:
    virtual ~Printer() = default;
    // Printing is finished when these return.
    virtual void Print(const GridPrintJob& job) = 0;
    virtual void Print(const TemplatePrintJob& job) = 0;
    // Documents one behind the other, each with pages of its own count. What could not be printed and why, a text each.
    virtual std::vector<std::string> PrintAll(const std::vector<TemplatePrintJob>& jobs);
};

class TreePrinter {
  public:
    virtual ~TreePrinter() = default;
    virtual void Print(const std::string& title, const Tree& tree) = 0;
};

class NoticeWindow {
  public:
    virtual ~NoticeWindow() = default;
    virtual void Show(const std::string& report) = 0;
};

class BackupKeeper {
  public:
    virtual ~BackupKeeper() = default;
    // Writes a copy of the company that is open, makes sure that it can be read back, and returns its place as people find
    // it. A DatabaseError when there is no sound copy.
    virtual std::string BackUp() = 0;
};

struct Components {
    std::unique_ptr<CodeListEditor> codeLists;
    std::unique_ptr<Printer> printer;
    std::unique_ptr<TreePrinter> treePrinter;
    std::unique_ptr<NoticeWindow> notice;
    std::unique_ptr<BackupKeeper> backups; // null: the host has its own way, and none is offered
};

// Those in use; the built-in ones until a host replaces them.
Components& ComponentsInUse();

} // namespace jxc

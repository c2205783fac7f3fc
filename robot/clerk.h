// A clerk at the entry screen, for work that needs many documents: each is entered, saved, approved and taken back
// through the same screen and routines as a person's, on the session's open company.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/scripted_view.h"
#include "documents/frmDj02.h"

namespace jxc {

struct LineInput {
    std::string code;
    double quantity;  // of a stocktake the count
    double price = 0; // 0 for the one that the screen offers; of a stocktake and of retail not typed
};

// What a person types; "" keeps what the screen has.
struct DocumentInput {
    int type = 1;
    std::string date = {}; // yyyy-mm-dd
    std::string warehouse = {};
    std::string warehouse2 = {};
    std::string customer = {}; // card code
    std::string order = {};
    std::vector<LineInput> lines = {};
    std::string product = {}; // of a kit document, with its pieces
    int pieces = 1;
    std::string number = {};
};

// Types the document into the screen, which is open on a new one of its type.
void EnterDocument(frmDj02& s, const DocumentInput& input);

class Clerk {
  public:
    // Opens the screen and enters the document, then `act` runs on it; the screen is closed afterwards.
    void Enter(const DocumentInput& input, const std::function<void(frmDj02&)>& act);
    // Opens the screen on a stored document with an Action.
    void Open(DocAction action, int type, int key, const std::function<void(frmDj02&)>& act);

    // The key of the document saved; 0 when it was refused (see LastBox).
    int Save(const DocumentInput& input);
    // False when it was refused.
    bool Approve(int type, int key);
    bool Reverse(int type, int key);
    bool Delete(int type, int key);

    std::string LastBox() const { return view.boxes.empty() ? "" : view.boxes.back().text; }

    ScriptedView view;

  private:
    void Show(frmDj02& screen, const std::function<void(frmDj02&)>& act);
    bool RunSave(DocAction action, int type, int key);
    ViewInUse inUse_{view};
};

// Clicks the save command; boxes are answered OK, printing with No.
void ClickSave(Clerk& clerk, frmDj02& screen);

} // namespace jxc

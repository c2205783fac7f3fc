// A clerk at the entry screen, for tests that need many documents: each is entered, saved, approved and taken
// back through the same screen and routines as a person's, on the session's open company.
#pragma once

#include <string>
#include <vector>

#include "controls/scripted_view.h"
#include "documents/frmDj02.h"
#include "host/company_address.h"
#include "tests/support/on_sample_company.h"

namespace jxc::test {

struct LineInput {
    std::string code;
    double quantity; // of a stocktake the count
    double price;    // of a stocktake and of retail not typed
};

struct DocumentInput {
    int type = 1;
    std::string date = "2026-11-05";
    std::string warehouse = {}; // "" keeps what the screen chose
    std::string warehouse2 = {};
    std::string customer = {}; // card code
    std::string order = {};
    std::vector<LineInput> lines = {};
    std::string product = {}; // of a kit document, with its pieces
    int pieces = 1;
};

// A document that makes sense for the type on the sample company with stock on hand, 1 to 3 lines.
DocumentInput TypicalDocument(int type);
// All 20 document types.
const std::vector<int>& AllTypes();

class Clerk {
  public:
    Clerk();

    // Opens the screen and enters the document, then `act` runs on it; the screen is closed afterwards.
    void Enter(const DocumentInput& input, const std::function<void(frmDj02&)>& act);
    // Opens the screen on a stored document with an Action.
    void Open(DocAction action, int type, int key, const std::function<void(frmDj02&)>& act);

    // The key of the document saved; 0 when it was refused (see LastBox).
    int Save(const DocumentInput& input);
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

// Every test of a suite runs on a sample company of its own that is open, with a clerk at work, on both engines.
class OnOpenCompany : public OnSampleCompany {
  protected:
    void Begin() override;
    void TearDown() override;
    // The key of the document saved and approved; a refusal fails the test.
    int Approved(const DocumentInput& input);

    std::unique_ptr<OpenCompany> open;
    std::unique_ptr<Clerk> clerk;
};

// Clicks the save command; boxes are answered OK, printing with No.
void ClickSave(Clerk& clerk, frmDj02& screen);

// The rows of the tables that documents touch, as texts, to be compared before and after.
std::vector<std::string> Books();
// What differs between two such states: "- " and a row that went, "+ " and a row that came.
std::vector<std::string> Changes(const std::vector<std::string>& before,
                                 const std::vector<std::string>& after);

} // namespace jxc::test

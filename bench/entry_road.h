// The system's own road: entry screens for new receipts, filled by a clerk's gestures and saved by their save
// buttons. All receipts are entered first, each in a screen of its own, and then saved one right behind the
// other, as the floor writes them: an engine that has rested for a while answers more slowly.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "bench/receipt.h"
#include "controls/scripted_view.h"
#include "documents/frmDj02.h"

namespace jxc::bench {

class EntryRoad {
  public:
    // Opens the company. Throws DatabaseError.
    EntryRoad(const std::string& company, const Trade& trade);

    // Enters the receipts, saves them, which approves each at once, and closes the screens. The seconds that
    // saving took, from the first click on a save button to the last screen being empty again. Throws
    // std::runtime_error when a screen does not do as expected.
    double SaveAll(std::span<const Receipt> receipts);

    // The statements that saving has sent so far, transaction commands among them.
    size_t StatementCount() const { return statements_; }

  private:
    void OpenNext();
    void Enter(frmDj02& s, const Receipt& receipt);
    void ClickAll();
    void Require(bool met, const std::string& expectation) const;

    Trade trade_;
    std::unique_ptr<Connection> connection_; // the session's while screens are open
    ScriptedView view_;
    std::vector<std::unique_ptr<frmDj02>> screens_;
    double seconds_ = 0; // of the last SaveAll
    bool saving_ = false;
    size_t statements_ = 0;
};

} // namespace jxc::bench

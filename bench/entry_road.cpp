#include "bench/entry_road.h"

#include <chrono>
#include <stdexcept>

#include "base/text.h"
#include "controls/gestures.h"
#include "host/company_address.h"
#include "robot/clerk.h"
#include "session/company/open_connection.h"
#include "session/session.h"

namespace jxc::bench {

namespace {

// Lends a connection to the session, where screens look for it.
class InSession {
  public:
    explicit InSession(std::unique_ptr<Connection>& connection) : connection_(connection) {
        session.Conn = std::move(connection_);
    }
    ~InSession() { connection_ = std::move(session.Conn); }
    InSession(const InSession&) = delete;
    InSession& operator=(const InSession&) = delete;

  private:
    std::unique_ptr<Connection>& connection_;
};

} // namespace

EntryRoad::EntryRoad(const std::string& company, const Trade& trade)
    : trade_(trade), connection_(std::make_unique<Connection>()) {
    lzJxc control;
    UseCompany(control, company);
    control.UserName(trade.user);
    control.ZgName(trade.user);
    control.myPower("9999999999");
    OpenOfSession(*connection_);
    connection_->SetObserver([this](std::string_view) {
        if (saving_)
            ++statements_;
    });
}

void EntryRoad::Require(bool met, const std::string& expectation) const {
    if (met)
        return;
    const std::string last = view_.boxes.empty() ? "" : "; last message: " + view_.boxes.back().text;
    throw std::runtime_error("the entry screen: " + expectation + last);
}

void EntryRoad::Enter(frmDj02& s, const Receipt& receipt) {
    DocumentInput input{.date = IsoText(receipt.date),
                        .warehouse = trade_.warehouse,
                        .customer = trade_.supplierCode,
                        .number = receipt.number};
    for (const ReceiptLine& line : receipt.lines)
        input.lines.push_back({line.product.code, static_cast<double>(line.quantity), line.Price()});
    EnterDocument(s, input);
    Require(view_.boxes.empty(), "a message while entering");
    Require(s.Number() == receipt.number && s.txtSum.text == FormatFixed(receipt.Total(), 2),
            "another number or total than " + receipt.number + " has");
    Require(s.CustomerId() == trade_.supplier, "another supplier");
}

void EntryRoad::ClickAll() {
    for (size_t i = 0; i < screens_.size(); ++i) {
        view_.Answer(BoxButton::OK); // save?
        view_.Answer(BoxButton::No); // print?
    }
    saving_ = true;
    const auto start = std::chrono::steady_clock::now();
    for (const auto& screen : screens_)
        Click(*screen, screen->cmdSave);
    seconds_ = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    saving_ = false;
    Require(view_.boxes.size() == 2 * screens_.size(), "other messages than two questions a receipt");
    view_.boxes.clear();
}

void EntryRoad::OpenNext() {
    screens_.push_back(std::make_unique<frmDj02>());
    frmDj02& s = *screens_.back();
    s.Action = static_cast<int>(DocAction::New);
    s.invType = 1;
    ShowModal(s);
    Require(view_.boxes.empty(), "a message on opening");
}

// The screens stand over each other like any modal ones; over the last all are saved.
double EntryRoad::SaveAll(std::span<const Receipt> receipts) {
    const InSession lent(connection_);
    const ViewInUse inUse(view_);
    view_.OnScreen("frmDj02", [&](Screen&) {
        Enter(*screens_.back(), receipts[screens_.size() - 1]);
        if (screens_.size() < receipts.size())
            OpenNext();
        else
            ClickAll();
    });
    OpenNext();
    screens_.clear();
    return seconds_;
}

} // namespace jxc::bench

#include "bench/receipt_rounds.h"

#include <algorithm>
#include <chrono>
#include <functional>

namespace jxc::bench {

namespace {

constexpr int kWarmUpDocuments = 50;

std::unique_ptr<Floor> NewFloor(EngineKind kind, const std::string& company, const Trade& trade) {
    return kind == EngineKind::Sqlite ? NewSqliteFloor(company, trade) : NewPostgresFloor(company, trade);
}

} // namespace

Book::Book(const Options& options, EngineKind kind, int documents)
    : documents_(options.documents), companies_(options, kind, documents),
      system_(companies_.System(), companies_.Master()),
      floor_(NewFloor(kind, companies_.Floor(), companies_.Master())) {}

std::vector<Receipt> Book::ReceiptsOfDay(int day, int count) const {
    return ReceiptsOf(companies_.Master(), AddDays(FirstDay(), day), count);
}

void Book::WarmUp() {
    const std::vector<Receipt> receipts = ReceiptsOfDay(0, kWarmUpDocuments);
    system_.SaveAll(receipts);
    for (const Receipt& receipt : receipts)
        floor_->SaveAndApprove(receipt);
    rates_.systemStatements = static_cast<double>(system_.StatementCount()) / kWarmUpDocuments;
    rates_.floorStatements = static_cast<double>(floor_->StatementCount()) / kWarmUpDocuments;
}

void Book::WriteBySystem(int day) {
    rates_.system.push_back(documents_ / system_.SaveAll(ReceiptsOfDay(day, documents_)));
}

void Book::WriteByFloor(int day) {
    const std::vector<Receipt> receipts = ReceiptsOfDay(day, documents_);
    const auto start = std::chrono::steady_clock::now();
    for (const Receipt& receipt : receipts)
        floor_->SaveAndApprove(receipt);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    rates_.floor.push_back(documents_ / taken.count());
}

ReceiptRounds::ReceiptRounds(const Options& options, EngineKind kind)
    : documents_(options.documents), empty_(options, kind, 0),
      full_(options, kind, options.historyLines / kLinesInADocument) {
    empty_.WarmUp();
    full_.WarmUp();
}

double ReceiptRounds::WriteRound() {
    ++day_;
    std::vector<std::function<void()>> blocks = {
        [this] { empty_.WriteBySystem(day_); },
        [this] { empty_.WriteByFloor(day_); },
        [this] { full_.WriteBySystem(day_); },
        [this] { full_.WriteByFloor(day_); },
    };
    if (day_ % 2 == 0)
        std::reverse(blocks.begin(), blocks.end());
    for (const auto& write : blocks)
        write();
    return documents_ / empty_.Measured().system.back();
}

} // namespace jxc::bench

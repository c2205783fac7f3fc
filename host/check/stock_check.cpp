// Stock counters against a recount of the approved lines; stock, price and value against the counters.

#include <cmath>

#include "base/text.h"
#include "host/check/stock_recount.h"

namespace jxc {

namespace {

constexpr const char* kNames[kCounters] = {"fQcSl", "fRkSl", "fCkSl", "fDkSl",
                                           "fPdSl", "fQcJe", "fRkJe", "fCkJe"};

bool IsNothing(const Counted& counted) {
    return std::all_of(counted.figures.begin(), counted.figures.end(),
                       [](double figure) { return Alike(figure, 0); });
}

class StockCheck {
  public:
    StockCheck(const CheckedCompany& company, Findings& findings)
        : company_(company), findings_(findings), counted_(CountLines(company.types, findings)) {
        const Rows products = findings.Ask("Select fCpID,fCpCode From tJXC_Cp");
        for (size_t row = 0; row < products.Count(); ++row)
            codes_[products.At(row, 0).AsLong()] = products.At(row, 1).AsText();
        const Rows warehouses = findings.Ask("Select fCkName From tJXC_Ck");
        for (size_t row = 0; row < warehouses.Count(); ++row)
            warehouses_.insert(LowerCase(warehouses.At(row, 0).AsText()));
    }

    void Run() {
        const Rows rows =
            findings_.Ask("Select fCkName,fCpID,fQcSl,fRkSl,fCkSl,fDkSl,fPdSl,fQcJe,fRkJe,fCkJe,fKcSL,fKcDj,"
                          "fKcJE,fMonth From tJXC_CkTj Order By fCkName,fCpID");
        CheckMonths(rows);
        for (size_t row = 0; row < rows.Count(); ++row)
            CheckRow(rows, row);
        if (stale_)
            return findings_.Note("库存统计仍是以前月份的，未与单据核对；请在[库存查询]中刷新库存统计。");
        for (const auto& [key, counted] : counted_)
            if (!seen_.contains(key) && !IsNothing(counted))
                wrong_[key] = Place(counted.warehouse, key.second) + "库存表没有该行";
        if (!wrong_.empty())
            TellWrong();
    }

  private:
    // A close or a reverse close moves the period; the counters stand until they are refreshed. It marks the whole
    // table: a few rows of another month do not make the others stale.
    void CheckMonths(const Rows& rows) {
        const auto monthOf = [&](size_t row) { return rows.At(row, 13).AsText().substr(0, 7); };
        std::map<std::string, size_t> count; // "" for rows that have come since
        for (size_t row = 0; row < rows.Count(); ++row)
            ++count[monthOf(row)];
        const auto commonest = std::max_element(
            count.begin(), count.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
        if (commonest == count.end())
            return;
        const std::string current = company_.Parameter("fSysDate").AsText().substr(0, 7);
        stale_ = !commonest->first.empty() && commonest->first != current;
        for (size_t row = 0; row < rows.Count(); ++row)
            if (const std::string month = monthOf(row);
                !month.empty() && month != current && month != commonest->first)
                findings_.Add(Place(rows.At(row, 0).AsText(), rows.At(row, 1).AsLong()) + "月份 " + month +
                              " 与库存表的其他行不同；请在[库存查询]中刷新库存统计。");
    }

    // One line for a state of the whole table, else one for each row.
    void TellWrong() {
        if (IsBeforeReverseClose())
            return findings_.Note("反结转之后库存统计尚未刷新（" + std::to_string(wrong_.size()) +
                                  " 行与单据不符）；请在[库存查询]中刷新库存统计。");
        if (const std::string day = LastDayCounted(); !day.empty())
            return findings_.Add("库存统计只算到 " + day +
                                 "，之后有已审核的单据没有计入；请在[库存查询]中不限日期重新刷新库存统计。");
        for (const auto& [key, line] : wrong_)
            findings_.Add(line + "；请在[库存查询]中刷新库存统计。");
    }

    // A reverse close brings documents back, with the month they were closed in, and leaves the counters to the
    // next refresh: then hardly a row that they have moved is right. After the refresh all are.
    bool IsBeforeReverseClose() {
        const Rows restored =
            findings_.Ask("Select distinct b.fCkName,b.fCpID From tJXC_CkDj02 b Inner Join tJXC_CkDj01 a On "
                          "a.fInvID=b.fInvID Where a.fInvSHR<>'' And a.fMonth is not null And a.fInvType<>0");
        size_t moved = 0, wrong = 0;
        for (size_t row = 0; row < restored.Count(); ++row) {
            const StockKey key{LowerCase(restored.At(row, 0).AsText()), restored.At(row, 1).AsLong()};
            const auto counted = counted_.find(key);
            if (counted == counted_.end() || IsNothing(counted->second))
                continue;
            ++moved;
            wrong += wrong_.contains(key);
        }
        return wrong * 2 > moved;
    }

    // Statistics can be refreshed up to a date. The last day, not the very last, up to which the documents make
    // all rows what they are; "" when there is none.
    std::string LastDayCounted() {
        const std::map<std::string, Recount> days = CountLinesByDay(company_.types, findings_);
        Recount upTo;
        for (const auto& [key, figures] : stored_)
            upTo[key]; // rows that no document explains
        for (const auto& [key, counted] : counted_)
            upTo[key].turnover = counted.turnover;
        std::string last;
        for (auto day = days.begin(); day != days.end() && std::next(day) != days.end(); ++day) {
            for (const auto& [key, counted] : day->second)
                for (size_t i = 0; i < kCounters; ++i)
                    upTo[key].figures[i] += counted.figures[i];
            if (std::all_of(upTo.begin(), upTo.end(), [&](const auto& row) { return IsStored(row); }))
                last = day->first;
        }
        return last;
    }

    bool IsStored(const Recount::value_type& expected) const {
        static const std::array<double, kCounters> nothing{};
        const auto row = stored_.find(expected.first);
        const auto& figures = row == stored_.end() ? nothing : row->second;
        for (size_t i = 0; i < kCounters; ++i)
            if (!Alike(figures[i], expected.second.figures[i], expected.second.turnover[i]))
                return false;
        return true;
    }

    std::string Place(const std::string& warehouse, std::int64_t product) const {
        const auto code = codes_.find(product);
        return "仓库 " + warehouse + "，产品 " +
               (code == codes_.end() ? "（编号 " + std::to_string(product) + "）" : code->second) + "：";
    }

    void CheckRow(const Rows& rows, size_t row) {
        const std::string warehouse = rows.At(row, 0).AsText();
        const StockKey key{LowerCase(warehouse), rows.At(row, 1).AsLong()};
        const std::string place = Place(warehouse, key.second);
        if (!seen_.insert(key).second)
            return findings_.Add(place + "库存表有重复的行；请刷新库存统计。");
        std::array<double, 11> figures{};
        for (size_t i = 0; i < figures.size(); ++i) {
            const Value& cell = rows.At(row, i + 2);
            figures[i] = cell.AsDouble();
            if (cell.IsText() || !std::isfinite(figures[i]) || std::fabs(figures[i]) > kAbsurdFigure)
                return findings_.Add(place + rows.names[i + 2] + " 不是正常的数值；请刷新库存统计。");
        }
        std::copy_n(figures.begin(), kCounters, stored_[key].begin());
        if (stale_ || MatchesDocuments(place, key, figures))
            CheckDerived(place, figures);
        if (!Alike(figures[8], 0) && !warehouses_.contains(key.first))
            findings_.Add(place + "仓库已不存在而有库存 " + NumberText(figures[8]) +
                          "；请重新建立该仓库后调出。");
        if (!Alike(figures[8], 0) && !codes_.contains(key.second))
            findings_.Add(place + "产品已不存在而有库存；请从备份恢复该产品。");
    }

    bool MatchesDocuments(const std::string& place, const StockKey& key,
                          const std::array<double, 11>& figures) {
        static const Counted none;
        const auto found = counted_.find(key);
        const Counted& counted = found == counted_.end() ? none : found->second;
        std::string wrong;
        for (size_t i = 0; i < kCounters; ++i)
            if (!Alike(figures[i], counted.figures[i], counted.turnover[i]))
                wrong += (wrong.empty() ? "" : "，") + std::string(kNames[i]) + " 为 " +
                         NumberText(figures[i]) + "，按单据应为 " + NumberText(counted.figures[i]);
        if (!wrong.empty())
            wrong_[key] = place + wrong;
        return wrong.empty();
    }

    // Stock, price and value follow from the counters; without goods received the price is the product's own.
    void CheckDerived(const std::string& place, const std::array<double, 11>& f) {
        const double stock = f[0] + f[1] - f[2] + f[3] + f[4];
        const double received = f[0] + f[1];
        const double value = f[5] + f[6];
        const auto told = [&](const char* field, double is, double should) {
            findings_.Add(place + field + " 为 " + NumberText(is) + "，按各项应为 " + NumberText(should) +
                          "；请在[库存查询]中刷新库存统计。");
        };
        if (!Alike(f[8], stock, 1e3 * std::fabs(f[0]) + 1e3 * std::fabs(f[1])))
            told("fKcSL", f[8], stock);
        else if (std::fabs(received) > 1e-9 && !Alike(f[9] * received, value))
            told("fKcDj", f[9], value / received);
        else if (!Alike(f[10], f[8] * f[9]))
            told("fKcJE", f[10], f[8] * f[9]);
    }

    const CheckedCompany& company_;
    Findings& findings_;
    const Recount counted_;
    std::map<std::int64_t, std::string> codes_;
    std::set<std::string> warehouses_;
    std::set<StockKey> seen_;
    std::map<StockKey, std::array<double, kCounters>> stored_;
    std::map<StockKey, std::string> wrong_; // what does not agree with the documents
    bool stale_ = false;
};

} // namespace

void CheckStock(const CheckedCompany& company, Findings& findings) {
    StockCheck(company, findings).Run();
}

} // namespace jxc

// Plans of random companies against a computation of its own over the rows of the tables: every method, limit and kind of
// plan, with and without a warehouse, on both engines. JXC_SEED repeats a run.
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <random>
#include <set>

#include "base/text.h"
#include "controls/gestures.h"
#include "plans/frmJh02.h"
#include "session/session.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

constexpr int kProducts = 14, kOrderLines = 30, kCompanies = 5;
const std::vector<std::string> kWarehouses{"总部仓", "零售门市", "生产仓"};

struct Line {
    int type;
    bool approved;
    int inv1;
    int product;
    double quantity, open;
};
struct Stock {
    int product;
    std::string warehouse;
    double quantity;
};
struct Product {
    std::string code;
    double lower, upper, price;
};
// A company as it was made: what the tables say, kept as values.
struct Trade {
    std::map<int, Product> products;
    std::map<int, int> kits; // product and flag
    std::vector<Stock> stock;
    std::vector<Line> orders, assemblies;
};

class Maker {
  public:
    explicit Maker(unsigned seed) : random_(seed) {}
    Trade Make() {
        Trade trade;
        for (const char* table : {"tJXC_Cp", "tJXC_CpTj01", "tJXC_CkTj", "tJXC_CkHt01", "tJXC_CkHt02",
                                  "tJXC_CkDj01", "tJXC_CkDj02"})
            Do(std::string("Delete From ") + table + " Where 1=1");
        for (int product = 2; product < 2 + kProducts; ++product)
            MakeProduct(trade, product);
        for (int line = 0; line < kOrderLines; ++line) {
            trade.orders.push_back(MakeLine("tJXC_CkHt", line + 2, Of(2) ? 24 : 23, 0));
            trade.assemblies.push_back(MakeLine("tJXC_CkDj", line + 2, Of(3) ? 31 : 32, Of(2)));
        }
        return trade;
    }

  private:
    int Of(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    double Quantity() { return Of(4) == 0 ? 0 : Of(80) * 0.25; }

    void MakeProduct(Trade& trade, int product) {
        const Product made{"P" + std::to_string(100 + Of(900)) + std::to_string(product), Quantity(),
                           Quantity() * 3, Of(100) * 0.5};
        trade.products[product] = made;
        Do("Insert Into tJXC_Cp (fCpID,fCpCode,fCpName,fCpGG,fCpSlMin,fCpSlMax,fCpPrice0,fCpFlag) Values (" +
           std::to_string(product) + ",'" + made.code + "','N','G'," + NumberText(made.lower) + "," +
           NumberText(made.upper) + "," + NumberText(made.price) + ",0)");
        if (Of(3) == 0) {
            const int flag = Of(3) - 1;
            trade.kits[product] = flag;
            Do("Insert Into tJXC_CpTj01 (fTjID,fCpID,fTjFlag) Values (" + std::to_string(product) + "," +
               std::to_string(product) + "," + std::to_string(flag) + ")");
        }
        for (const std::string& warehouse : kWarehouses)
            if (Of(2)) {
                trade.stock.push_back({product, warehouse, Quantity() - 3});
                Do("Insert Into tJXC_CkTj (fCpID,fCkName,fKcSl) Values (" + std::to_string(product) + ",'" +
                   warehouse + "'," + NumberText(trade.stock.back().quantity) + ")");
            }
    }
    Line MakeLine(const std::string& stem, int key, int type, int inv1) {
        const Line line{type, Of(2) == 0, inv1, 2 + Of(kProducts), Quantity(), Quantity() - 2};
        Do("Insert Into " + stem + "01 (fInvID,fInvType,fInvSHR) Values (" + std::to_string(key) + "," +
           std::to_string(type) + ",'" + (line.approved ? "x" : "") + "')");
        Do("Insert Into " + stem + "02 (fInvID,fInv1,fRowID,fCpID,fInvSL,fInvSL2) Values (" +
           std::to_string(key) + "," + std::to_string(inv1) + ",1," + std::to_string(line.product) + "," +
           NumberText(line.quantity) + "," + NumberText(line.open) + ")");
        return line;
    }
    std::mt19937 random_;
};

struct Asked {
    bool production;
    int method, limit;
    std::string warehouse; // "" for all
};

// The plan by hand: the two sums of the methods by orders run over each pair of an order line and a stock row.
Lines PlanOf(const Trade& trade, const Asked& asked) {
    std::map<std::string, std::string> rows;
    for (const auto& [id, product] : trade.products) {
        const auto kit = trade.kits.find(id);
        if ((kit != trade.kits.end() && kit->second < 1) != asked.production)
            continue;
        std::vector<double> stocks, sales;
        for (const Stock& stock : trade.stock)
            if (stock.product == id && (asked.warehouse.empty() || asked.warehouse == stock.warehouse))
                stocks.push_back(stock.quantity);
        double purchases = 0, assembled = 0;
        for (const Line& line : trade.orders) {
            if (line.product == id && line.type == 24 && line.open > 0)
                sales.push_back(line.open);
            if (line.product == id && line.type == 23)
                purchases += line.open;
        }
        for (const Line& line : trade.assemblies)
            if (line.product == id && line.type == 31 && !line.approved && line.inv1 == 1)
                assembled += line.quantity;
        const bool byOrders = asked.method > 0;
        if ((byOrders ? sales.empty() : product.upper <= 0) || (!asked.warehouse.empty() && stocks.empty()))
            continue;
        double stock = 0, sold = 0;
        for (const double each : stocks)
            stock += each * (byOrders ? static_cast<double>(sales.size()) : 1);
        for (const double each : sales)
            sold += each * (stocks.empty() ? 1 : static_cast<double>(stocks.size()));
        const double limits[] = {0, product.lower, (product.lower + product.upper) / 2, product.upper};
        double needed = limits[asked.limit] - stock;
        if (byOrders)
            needed += sold - purchases - (asked.method == 2 ? assembled : 0);
        if (needed > 0)
            rows[product.code] = product.code + "|" + NumberText(stock) + "|" + NumberText(needed) + "|" +
                                 FormatFixed(RoundDecimal(needed * product.price, 2), 2, false);
    }
    Lines plan;
    for (const auto& [code, row] : rows)
        plan.push_back(row);
    return plan;
}

Lines Shown(const Grid& grid) {
    Lines rows;
    for (int row = 1; row <= grid.RowCount(); ++row)
        rows.push_back(grid.Text(row, plan::kCode) + "|" + NumberText(grid.Number(row, plan::kStock)) + "|" +
                       NumberText(grid.Number(row, plan::kNeeded)) + "|" +
                       FormatFixed(grid.Number(row, plan::kAmount), 2, false));
    return rows;
}

// How many rows the screen and the model agreed on, over all methods, limits and warehouses.
size_t CompareAll(const Trade& trade, bool production, frmJh02& screen) {
    size_t seen = 0;
    for (int method = 0; method < (production ? 3 : 2); ++method)
        for (int limit = method == 0 ? 1 : 0; limit <= 3; ++limit)
            for (const std::string warehouse : {"", "总部仓"}) {
                screen.cboType.SetIndex(method);
                screen.cboKcType.SetIndex(limit);
                screen.chkCk.value = !warehouse.empty();
                screen.cboCk.SetText(warehouse);
                Click(screen, screen.cmdQuery);
                const Lines plan = PlanOf(trade, {production, method, limit, warehouse});
                EXPECT_EQ(Shown(screen.Grid1), plan) << "production " << production << ", method " << method
                                                     << ", limit " << limit << ", " << warehouse;
                seen += plan.size();
            }
    return seen;
}

using PlanModel = OnOpenCompany;
ON_BOTH_ENGINES(PlanModel);

TEST_P(PlanModel, AgreesWithEveryPlan) {
    const char* given = std::getenv("JXC_SEED");
    const unsigned seed = given ? static_cast<unsigned>(std::atoi(given)) : std::random_device{}();
    SCOPED_TRACE("JXC_SEED=" + std::to_string(seed));
    size_t seen = 0;
    for (int company = 0; company < kCompanies; ++company) {
        const Trade trade = Maker(seed + static_cast<unsigned>(company)).Make();
        for (const bool production : {false, true}) {
            clerk->view.OnScreen("frmJh02", [&](Screen& screen) {
                seen += CompareAll(trade, production, dynamic_cast<frmJh02&>(screen));
            });
            Screen& screen = ScreenNamed("frmJh02");
            screen.SetProperty("myState", production ? 1 : 0);
            ShowModal(screen);
            ASSERT_FALSE(HasFailure()) << "company " << company;
        }
    }
    EXPECT_GT(seen, 100u);
}

} // namespace

} // namespace jxc::test

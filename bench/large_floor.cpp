#include "bench/large_floor.h"

#include <stdexcept>
#include <unordered_map>

namespace jxc::bench {

// Statements prepared on their first use, found by the address of their text.
class LargeFloor::Statements {
  public:
    explicit Statements(sqlite3* db) : db_(db) {}

    // The statement with its values bound, not stepped.
    template <typename... Values>
    sqlite3_stmt* Bound(const char* text, const Values&... values) {
        SqliteStatementHandle& statement = prepared_[text];
        if (!statement)
            statement = PrepareSqlite(db_, text, SQLITE_PREPARE_PERSISTENT);
        if (!statement)
            throw std::runtime_error(sqlite3_errmsg(db_));
        int at = 0;
        (Bind(statement.get(), ++at, values), ...);
        return statement.get();
    }

    template <typename... Values>
    void Run(const char* text, const Values&... values) {
        Each(Bound(text, values...), [](sqlite3_stmt*) {});
    }

    template <typename OnRow>
    void Each(sqlite3_stmt* statement, const OnRow& onRow) {
        int result = 0;
        while ((result = sqlite3_step(statement)) == SQLITE_ROW)
            onRow(statement);
        sqlite3_reset(statement);
        if (result != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(db_));
    }

  private:
    static void Bind(sqlite3_stmt* s, int at, std::int64_t value) { sqlite3_bind_int64(s, at, value); }
    static void Bind(sqlite3_stmt* s, int at, int value) { sqlite3_bind_int64(s, at, value); }
    static void Bind(sqlite3_stmt* s, int at, double value) { sqlite3_bind_double(s, at, value); }
    static void Bind(sqlite3_stmt* s, int at, const std::string& value) {
        sqlite3_bind_text(s, at, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
    }

    sqlite3* db_;
    std::unordered_map<const char*, SqliteStatementHandle> prepared_;
};

namespace {

const std::string kUser = "王芳";

bool IsPair(const LargeDocument& document) {
    return document.type == 3;
}
int FirstDirection(const LargeDocument& document) {
    return document.type == 1 ? 1 : 2;
}

std::string Text(sqlite3_stmt* row, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    return text ? text : "";
}

double Total(const LargeDocument& document) {
    double total = 0;
    for (const LargeLine& line : document.lines)
        total += line.quantity * line.price;
    return total;
}

} // namespace

LargeFloor::LargeFloor(const std::string& file)
    : db_(OpenSqlite(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX)) {
    if (sqlite3_errcode(db_.get()) != SQLITE_OK ||
        sqlite3_exec(db_.get(),
                     "pragma synchronous = full; pragma temp_store = memory; pragma cache_size = -65536;"
                     "pragma journal_mode = wal",
                     nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(db_.get()));
    statements_ = std::make_unique<Statements>(db_.get());
}

LargeFloor::~LargeFloor() = default;

std::int64_t LargeFloor::Save(const LargeDocument& document) {
    Statements& s = *statements_;
    s.Run("begin immediate");
    std::int64_t key = 1;
    s.Each(s.Bound("select count(*) from tJXC_CkDj01 where fInvNo = ?1", document.number),
           [](sqlite3_stmt*) {});
    s.Each(s.Bound("select max(fInvID) from tJXC_CkDj01"),
           [&](sqlite3_stmt* row) { key = std::max<std::int64_t>(key, sqlite3_column_int64(row, 0)); });
    ++key;
    const double total = Total(document);
    s.Run("insert into tJXC_CkDj01 (fInvID, fHtNo, fInvType, fInvNo, fInvDate, fInvHb, fInvHbDl, fInvJE, "
          "fInvMemo, fInvDLR,"
          " fInvJbr, fInvSHR, fKhID, fKhAdd, fCkName, fCkName2, fFlag)"
          " values (?1, '', ?2, ?3, ?4, '人民币', 1, ?5, '', ?6, '', '', ?7, '', ?8, ?9, 0)",
          key, document.type, document.number, document.date, total, kUser, document.customer,
          document.warehouse, document.warehouse2);
    const auto insert = [&](int second, int place, int direction, const std::string& warehouse,
                            const LargeLine& line) {
        s.Run("insert into tJXC_CkDj02 (fInv1, fRowID, fInvID, fInvInOut, fCkName, fInvNo, fInvDate, fInvHb, "
              "fInvHbDl, fKhID,"
              " fCpID, fInvSL, fInvDJ, fInvDJ2, fInvJE, fInvTaxRate, fInvTax, fInvOther1, fInvOther2)"
              " values (?1, ?2, ?3, ?4, ?5, ?6, ?7, '人民币', 1, ?8, ?9, ?10, ?11, 0, ?12, 0, 0, '', '')",
              second, place, key, direction, warehouse, document.number, document.date, document.customer,
              line.product, line.quantity, line.price, line.quantity * line.price);
    };
    int place = 0;
    for (const LargeLine& line : document.lines)
        insert(0, ++place, FirstDirection(document), document.warehouse, line);
    place = 0;
    if (IsPair(document))
        for (const LargeLine& line : document.lines)
            insert(1, ++place, 1, document.warehouse2, line);
    if (document.type == 31)
        insert(1, 1, 1, document.warehouse2, {document.finishedProduct, 1, total});
    s.Run("commit");
    return key;
}

// Reads the stock row of a line's row and writes what the row makes of it.
void LargeFloor::PostRow(const LargeDocument& document, sqlite3_stmt* row, bool reversal) {
    Statements& s = *statements_;
    const std::int64_t product = sqlite3_column_int64(row, 0);
    const std::string warehouse = Text(row, 1);
    double quantity = sqlite3_column_double(row, 2) * (reversal ? -1 : 1);
    const double value = quantity * sqlite3_column_double(row, 3);
    const double moved = sqlite3_column_int(row, 4) == 1 ? quantity : -quantity;
    double f[7] = {}; // opening, its value, received, its value, issued, its value, moved
    bool isNew = true;
    s.Each(s.Bound("select fQcSl, fQcJe, fRkSl, fRkJe, fCkSl, fCkJe, fDkSl from tJXC_CkTj where fCkName = ?1 "
                   "and fCpID = ?2",
                   warehouse, product),
           [&](sqlite3_stmt* stored) {
               isNew = false;
               for (int i = 0; i < 7; ++i)
                   f[i] = sqlite3_column_double(stored, i);
           });
    if (document.type == 1)
        f[2] += quantity, f[3] += value;
    else if (document.type == 2)
        f[4] += quantity, f[5] += value;
    else
        f[6] += moved;
    const double incoming = f[0] + f[2];
    const double price = incoming == 0 ? sqlite3_column_double(row, 5) : (f[1] + f[3]) / incoming;
    const double stock = incoming - f[4] + f[6];
    if (isNew)
        s.Run("insert into tJXC_CkTj (fRkSl, fRkJe, fCkSl, fCkJe, fDkSl, fKcSl, fKcDj, fKcJe, fCkName, "
              "fCpID, fQcSl, fQcJe,"
              " fCkCb, fPdSl) values (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, 0, 0, 0, 0)",
              f[2], f[3], f[4], f[5], f[6], stock, price, stock * price, warehouse, product);
    else
        s.Run("update tJXC_CkTj set fRkSl = ?1, fRkJe = ?2, fCkSl = ?3, fCkJe = ?4, fDkSl = ?5, fKcSl = ?6, "
              "fKcDj = ?7,"
              " fKcJe = ?8 where fCkName = ?9 and fCpID = ?10",
              f[2], f[3], f[4], f[5], f[6], stock, price, stock * price, warehouse, product);
}

void LargeFloor::PostPrices(const LargeDocument& document, std::int64_t key, bool reversal) {
    Statements& s = *statements_;
    if (document.type == 1) {
        std::vector<std::pair<std::int64_t, double>> prices;
        s.Each(s.Bound("select a.fCpID, a.fInvSL, a.fInvDJ, sum(b.fKcSl), sum(b.fKcJe) from tJXC_CkDj02 a"
                       " join tJXC_CkTj b on b.fCpID = a.fCpID join tJXC_Ck c on c.fCkName = b.fCkName"
                       " where a.fInvID = ?1 and c.fCkType2 = 0 and c.fCkType3 = 0"
                       " group by a.fCpID, a.fInvSL, a.fInvDJ, a.fInvHbDl",
                       key),
               [&](sqlite3_stmt* row) {
                   const double quantity = sqlite3_column_double(row, 1) * (reversal ? -1 : 1);
                   const double stock = sqlite3_column_double(row, 3) + quantity;
                   const double value =
                       quantity * sqlite3_column_double(row, 2) + sqlite3_column_double(row, 4);
                   prices.emplace_back(sqlite3_column_int64(row, 0), stock == 0 ? 0 : value / stock);
               });
        for (const auto& [product, price] : prices)
            s.Run("insert into tJXC_CkTj_tmp (fCpID, fKcDj) values (?1, ?2)"
                  " on conflict (fCpID) do update set fKcDj = excluded.fKcDj",
                  product, price);
        if (reversal)
            s.Run("delete from tJXC_CpGys where fInvNo = ?1", document.number);
        else
            s.Run("insert into tJXC_CpGys (fCpID, fKhID, fCpSl, fCpPrice, fInvDate, fInvNo) select fCpID, "
                  "fKhID, fInvSl,"
                  " fInvDJ, fInvDate, fInvNo from tJXC_CkDj02 where fInvNo = ?1",
                  document.number);
    } else if (document.type == 2 && !reversal) {
        s.Run("update tJXC_CkDj02 set fInvDJ2 = b.fKcDj from tJXC_CkTj b where tJXC_CkDj02.fCpID = b.fCpID"
              " and tJXC_CkDj02.fCkName = b.fCkName and tJXC_CkDj02.fInvID = ?1 and b.fKcDj > 0",
              key);
        s.Run("update tJXC_CkDj02 set fInvDJ2 = b.fCpPrice0 from tJXC_Cp b where tJXC_CkDj02.fCpID = b.fCpID"
              " and tJXC_CkDj02.fInvID = ?1 and tJXC_CkDj02.fInvDJ2 = 0",
              key);
    }
}

void LargeFloor::PostAccount(const LargeDocument& document, bool reversal) {
    Statements& s = *statements_;
    if (document.type != 1 && document.type != 2)
        return;
    if (reversal)
        return s.Run("delete from tAccountDetail where fInvID = ?1 and fDate = ?2", document.number,
                     document.date);
    const std::string stem = document.date.substr(0, 4) + document.date.substr(5, 2) + "WL";
    int counter = 0;
    s.Each(s.Bound("select max(fAcntNo) from tAccountDetail where fAcntNo >= ?1 and fAcntNo < ?2", stem,
                   stem + "~"),
           [&](sqlite3_stmt* row) {
               const std::string largest = Text(row, 0);
               counter = largest.empty() ? 0 : std::stoi(largest.substr(stem.size()));
           });
    const std::string text = std::to_string(counter + 1);
    s.Run("insert into tAccountDetail (fAcntNo, fDate, fCompID, fType1, fType2, fInit, fMoneyA, fMoneyB, "
          "fBrief, fInvID,"
          " fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate)"
          " values (?1, ?2, ?3, 0, ?4, 0, ?5, 0, '自动挂入', ?6, '', ?7, '', '', '0', '人民币', 1)",
          stem + std::string(5 - text.size(), '0') + text, document.date, document.customer,
          document.type == 1 ? 2 : 1, Total(document), document.number, kUser);
}

void LargeFloor::Approve(const LargeDocument& document, std::int64_t key, bool reversal) {
    Statements& s = *statements_;
    s.Run("begin immediate");
    s.Each(
        s.Bound("select a.fCpID, a.fCkName, a.fInvSL, a.fInvDJ, a.fInvInOut, b.fCpPrice0 from tJXC_CkDj02 a"
                " left join tJXC_Cp b on a.fCpID = b.fCpID where a.fInvID = ?1 order by a.fCpID, a.fCkName",
                key),
        [&](sqlite3_stmt* row) { PostRow(document, row, reversal); });
    PostPrices(document, key, reversal);
    PostAccount(document, reversal);
    s.Run("update tJXC_CkDj01 set fInvSHR = ?1 where fInvID = ?2", reversal ? std::string() : kUser, key);
    s.Run("commit");
}

} // namespace jxc::bench

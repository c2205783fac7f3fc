#include "host/company/sample_month.h"

#include <sstream>
#include <stdexcept>
#include <vector>

#include "base/date.h"
#include "base/text.h"
#include "host/company_address.h"
#include "robot/scenario.h"
#include "session/company/open_connection.h"
#include "session/lookups/book.h"
#include "session/session.h"
#include "settings/document_types.h"
#include "settings/type_codes.h"

namespace jxc {

namespace {

struct Line {
    const char* product;
    double quantity;
    double price = 0; // 0 for the one that the screen offers
};

struct Document {
    int type;
    int day; // of thirty; spread over the month up to today
    const char* warehouse;
    const char* warehouse2;
    const char* customer;
    const char* memo;
    bool approved;
    std::vector<Line> lines;
    const char* finishedProduct = "";
    int kits = 1;
};

const char* const kHead = "总部仓";
const char* const kShop = "零售门市";
const char* const kWorkshop = "生产仓";

const std::vector<Document> kMonth = {
    {0, 1, kHead, "", "", "", true, {{"CPU001", 12},  {"CPU002", 30},  {"CPU003", 22}, {"CPU004", 4},
                                     {"MB001", 20},   {"MB002", 34},   {"MB003", 9},   {"MEM001", 88},
                                     {"MEM002", 96},  {"MEM003", 40},  {"MEM004", 60}, {"SSD001", 50},
                                     {"SSD002", 77},  {"SSD003", 31},  {"HDD001", 26}, {"VGA001", 14},
                                     {"VGA002", 11},  {"LCD001", 18},  {"LCD002", 25}, {"LCD003", 12},
                                     {"BOX001", 28},  {"BOX002", 16},  {"PWR001", 30}, {"PWR002", 22},
                                     {"CPF001", 33},  {"CPF004", 120}, {"KB003", 64},  {"NET003", 5},
                                     {"CAB001", 210}, {"PRT003", 35},  {"KB001", 40},  {"MS002", 58},
                                     {"NET001", 24},  {"NET005", 18},  {"CAB003", 45}}},
    {23, 3, "", "", "G001", "", true, {{"CPU003", 20, 885}, {"MEM002", 60, 169}, {"MEM003", 30, 265}}},
    {1, 5, kHead, "", "G001", "", true, {{"CPU002", 15, 618}, {"CPU003", 10, 887}, {"MEM002", 40, 170.5}}},
    {1, 6, kHead, "", "G003", "", true, {{"SSD002", 60, 209}, {"SSD003", 20, 372}, {"HDD001", 20, 266}}},
    {1, 8, kHead, "", "G005", "", true, {{"BOX001", 20, 87}, {"PWR001", 30, 95}, {"CPF001", 24, 61.5}}},
    {22, 9, "", "", "X005", "", true, {{"LCD002", 20, 590}, {"KB003", 20, 72}}},
    {2, 10, kHead, "", "X001", "", true, {{"CPU002", 8}, {"MEM002", 16}, {"SSD002", 12}}},
    {2, 12, kHead, "", "X002", "", true, {{"MB002", 10}, {"MEM001", 40}, {"SSD001", 20}, {"PWR001", 10}}},
    {24, 13, "", "", "X005", "", true, {{"LCD002", 20, 590}, {"KB003", 20, 72}}},
    {3,
     14,
     kHead,
     kShop,
     "",
     "",
     true,
     {{"KB003", 20},
      {"NET003", 3},
      {"PRT003", 30},
      {"LCD001", 4},
      {"MS002", 20},
      {"NET001", 12},
      {"CAB003", 25}}},
    {3,
     15,
     kHead,
     kWorkshop,
     "",
     "",
     true,
     {{"CPU002", 6}, {"MB002", 6}, {"MEM001", 6}, {"SSD001", 6}, {"BOX001", 6}, {"PWR001", 6}}},
    {31,
     17,
     kWorkshop,
     kHead,
     "",
     "",
     true,
     {{"CPU002", 5}, {"MB002", 5}, {"MEM001", 5}, {"SSD001", 5}, {"BOX001", 5}, {"PWR001", 5}},
     "PC001",
     5},
    {5, 18, kShop, "", "", "", true, {{"KB003", 6}, {"MS002", 9}, {"NET001", 4}, {"CAB003", 12}}},
    {2, 20, kHead, "", "X004", "", true, {{"PC001", 3}, {"LCD002", 3}}},
    {-2, 22, kHead, "", "X001", "", true, {{"SSD002", 2}}},
    {1, 24, kHead, "", "G004", "", false, {{"LCD002", 30, 522}, {"LCD003", 10, 980}}},
    {2, 26, kHead, "", "X006", "", false, {{"LCD003", 6}, {"KB003", 8}}},
};

std::string NameOfType(int type) {
    for (const DocumentTypeRow& row : DefaultDocumentTypes())
        if (row.fSetNo == type)
            return std::string(row.fSetName);
    throw std::runtime_error("没有单据类型 " + std::to_string(type));
}

Date DayOf30(int day) {
    const Date today = Today();
    return MakeDate(YearOf(today), MonthOf(today), std::max(1, day * DayOf(today) / 30));
}

void WriteLines(std::ostream& out, const Document& document) {
    int row = 0;
    for (const Line& line : document.lines) {
        ++row;
        out << "type Grid2 " << row << " 1 " << line.product << "\n";
        out << "type Grid2 " << row << " 6 " << NumberText(line.quantity) << "\n";
        if (line.price > 0)
            out << "type Grid2 " << row << " 9 " << NumberText(line.price) << "\n";
    }
}

void WriteEntry(std::ostream& out, const Document& document) {
    const std::string name = NameOfType(document.type);
    out << "refresh 13 invType=" << document.type << "\nset dtpInvDate " << IsoText(DayOf30(document.day))
        << "\n";
    for (const auto& [list, warehouse] :
         {std::pair("cboCkName", document.warehouse), {"cboCkName2", document.warehouse2}})
        if (*warehouse)
            out << "choose " << list << " " << warehouse << "\n";
    if (*document.customer)
        out << "set txtKhSeek " << document.customer << "\nkey txtKhSeek Enter\n";
    if (*document.finishedProduct)
        out << "set txtCpCode " << document.finishedProduct << "\nkey txtCpCode Enter\nset txtInvSL "
            << document.kits << "\n";
    WriteLines(out, document);
    out << "keep number txtNo\nclick cmdSave\n"
        << "box " << name << "：新增 | " << name << "：新增：${number}，确定？ | OK\n"
        << "box " << name << "：新增 | 单据新增完毕。打印本张单据？ | No\nclick cmdQuit\n";
}

void WriteApproval(std::ostream& out, const Document& document) {
    const std::string name = NameOfType(document.type);
    const bool moves = std::abs(document.type) < DocType::FirstBeyondStock;
    const std::string book = BookStem(document.type, false) + "01";
    out << "let key select fInvID from " << book << " where fInvNo='${number}'\n"
        << "refresh 13 Action=4 invType=" << document.type << " oldInvID=${key}\nclick cmdSave\n"
        << "box 单据审核 | ${number}：单据审核，"
        << (moves ? "系统将同时进行库存数刷新、往来帐处理等操作，" : "") << "确定？ | OK\nbox " << name
        << "：审核 | ${number}：单据审核完毕！ | OK\nclick cmdQuit\n";
}

std::string Script() {
    std::ostringstream out;
    for (const Document& document : kMonth) {
        WriteEntry(out, document);
        if (document.approved)
            WriteApproval(out, document);
    }
    return out.str();
}

} // namespace

void PlaySampleMonth(lzJxc& control) {
    const auto run = [](const std::string& sql) {
        Connection connection;
        OpenConnection(session.SQLData, connection, session.UserPath, session.Password, session.UserID,
                       session.Default);
        return connection.Query(sql);
    };
    Scenario scenario(
        "样例", Script(), run, [](const std::string&) {}, [](const std::string&) {});
    const std::vector<std::string> failures = PlayScenario(control, scenario);
    if (!failures.empty())
        throw std::runtime_error("样例公司的单据未能录入：" + failures.front());
}

} // namespace jxc

#include "host/company/sample_month.h"

#include <stdexcept>
#include <vector>

#include "base/date.h"
#include "host/company_address.h"
#include "robot/clerk.h"
#include "session/session.h"
#include "settings/type_codes.h"

namespace jxc {

namespace {

struct SampleDocument {
    int day; // of thirty; spread over the month up to today
    bool approved;
    DocumentInput input;
};

const char* const kHead = "总部仓";
const char* const kShop = "零售门市";
const char* const kWorkshop = "生产仓";

const std::vector<SampleDocument> kMonth = {
    {1,
     true,
     {.type = DocType::Opening,
      .warehouse = kHead,
      .lines = {{"CPU001", 12},  {"CPU002", 30}, {"CPU003", 22}, {"CPU004", 4},   {"MB001", 20},
                {"MB002", 34},   {"MB003", 9},   {"MEM001", 88}, {"MEM002", 96},  {"MEM003", 40},
                {"MEM004", 60},  {"SSD001", 50}, {"SSD002", 77}, {"SSD003", 31},  {"HDD001", 26},
                {"VGA001", 14},  {"VGA002", 11}, {"LCD001", 18}, {"LCD002", 25},  {"LCD003", 12},
                {"BOX001", 28},  {"BOX002", 16}, {"PWR001", 30}, {"PWR002", 22},  {"CPF001", 33},
                {"CPF004", 120}, {"KB003", 64},  {"NET003", 5},  {"CAB001", 210}, {"PRT003", 35},
                {"KB001", 40},   {"MS002", 58},  {"NET001", 24}, {"NET005", 18},  {"CAB003", 45}}}},
    {3,
     true,
     {.type = DocType::PurchaseOrder,
      .customer = "G001",
      .lines = {{"CPU003", 20, 885}, {"MEM002", 60, 169}, {"MEM003", 30, 265}}}},
    {5,
     true,
     {.type = DocType::Receipt,
      .warehouse = kHead,
      .customer = "G001",
      .lines = {{"CPU002", 15, 618}, {"CPU003", 10, 887}, {"MEM002", 40, 170.5}}}},
    {6,
     true,
     {.type = DocType::Receipt,
      .warehouse = kHead,
      .customer = "G003",
      .lines = {{"SSD002", 60, 209}, {"SSD003", 20, 372}, {"HDD001", 20, 266}}}},
    {8,
     true,
     {.type = DocType::Receipt,
      .warehouse = kHead,
      .customer = "G005",
      .lines = {{"BOX001", 20, 87}, {"PWR001", 30, 95}, {"CPF001", 24, 61.5}}}},
    {9,
     true,
     {.type = DocType::Quotation, .customer = "X005", .lines = {{"LCD002", 20, 590}, {"KB003", 20, 72}}}},
    {10,
     true,
     {.type = DocType::Issue,
      .warehouse = kHead,
      .customer = "X001",
      .lines = {{"CPU002", 8}, {"MEM002", 16}, {"SSD002", 12}}}},
    {12,
     true,
     {.type = DocType::Issue,
      .warehouse = kHead,
      .customer = "X002",
      .lines = {{"MB002", 10}, {"MEM001", 40}, {"SSD001", 20}, {"PWR001", 10}}}},
    {13,
     true,
     {.type = DocType::SalesOrder, .customer = "X005", .lines = {{"LCD002", 20, 590}, {"KB003", 20, 72}}}},
    {14,
     true,
     {.type = DocType::Transfer,
      .warehouse = kHead,
      .warehouse2 = kShop,
      .lines = {{"KB003", 20},
                {"NET003", 3},
                {"PRT003", 30},
                {"LCD001", 4},
                {"MS002", 20},
                {"NET001", 12},
                {"CAB003", 25}}}},
    {15,
     true,
     {.type = DocType::Transfer,
      .warehouse = kHead,
      .warehouse2 = kWorkshop,
      .lines = {{"CPU002", 6}, {"MB002", 6}, {"MEM001", 6}, {"SSD001", 6}, {"BOX001", 6}, {"PWR001", 6}}}},
    {17,
     true,
     {.type = DocType::Assembly,
      .warehouse = kWorkshop,
      .warehouse2 = kHead,
      .lines = {{"CPU002", 5}, {"MB002", 5}, {"MEM001", 5}, {"SSD001", 5}, {"BOX001", 5}, {"PWR001", 5}},
      .product = "PC001",
      .pieces = 5}},
    {18,
     true,
     {.type = DocType::Retail,
      .warehouse = kShop,
      .lines = {{"KB003", 6}, {"MS002", 9}, {"NET001", 4}, {"CAB003", 12}}}},
    {20,
     true,
     {.type = DocType::Issue,
      .warehouse = kHead,
      .customer = "X004",
      .lines = {{"PC001", 3}, {"LCD002", 3}}}},
    {22, true, {.type = -DocType::Issue, .warehouse = kHead, .customer = "X001", .lines = {{"SSD002", 2}}}},
    {24,
     false,
     {.type = DocType::Receipt,
      .warehouse = kHead,
      .customer = "G004",
      .lines = {{"LCD002", 30, 522}, {"LCD003", 10, 980}}}},
    {26,
     false,
     {.type = DocType::Issue,
      .warehouse = kHead,
      .customer = "X006",
      .lines = {{"LCD003", 6}, {"KB003", 8}}}},
};

Date DayOf30(int day) {
    const Date today = Today();
    return MakeDate(YearOf(today), MonthOf(today), std::max(1, day * DayOf(today) / 30));
}

void Play(Clerk& clerk, const SampleDocument& document) {
    DocumentInput input = document.input;
    input.date = IsoText(DayOf30(document.day));
    const int key = clerk.Save(input);
    if (key == 0 || (document.approved && !clerk.Approve(input.type, key)))
        throw std::runtime_error("样例公司的单据未能录入：" + input.date + "，类型 " +
                                 std::to_string(input.type) + "。" + clerk.LastBox());
}

} // namespace

void PlaySampleMonth() {
    const OpenCompany open(session.UserPath);
    Clerk clerk;
    for (const SampleDocument& document : kMonth)
        Play(clerk, document);
    ResetScreens();
}

} // namespace jxc

#include "tests/support/clerk.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>

#include "base/text.h"
#include "host/embedding.h"
#include "session/session.h"

namespace jxc::test {

const std::vector<int>& AllTypes() {
    static const std::vector<int> types{0,  1, -1, 2,  -2, 3,  4,  5,  -5, 6,
                                        -6, 7, -7, 20, 21, 22, 23, 24, 31, 32};
    return types;
}

DocumentInput TypicalDocument(int type) {
    DocumentInput input{.type = type, .lines = {{"CPU002", 3, 610}, {"MEM002", 5, 171.5}}};
    switch (type) {
    case 1:
    case -1:
        input.customer = "G001";
        break;
    case 2:
    case -2:
        input.customer = "X001";
        break;
    case 3:
        input.warehouse = "总部仓", input.warehouse2 = "零售门市";
        break;
    case 4:
        input.warehouse = "总部仓";
        break;
    case 6:
    case -6:
        input.warehouse2 = "代销仓", input.customer = "X002";
        break;
    case 7:
    case -7:
        input.warehouse = "代销仓", input.customer = "X002";
        break;
    case 21:
    case 23:
        input.customer = "G002";
        break;
    case 22:
    case 24:
        input.customer = "X003";
        break;
    case 31:
    case 32:
        input.product = "MB001", input.pieces = 2;
        break;
    default:
        break;
    }
    return input;
}

void OnOpenCompany::Begin() {
    RegisterAllScreens();
    open = std::make_unique<OpenCompany>(company->Address());
    clerk = std::make_unique<Clerk>();
}

void OnOpenCompany::TearDown() {
    clerk.reset();
    open.reset();
    OnSampleCompany::TearDown();
}

int OnOpenCompany::Approved(const DocumentInput& input) {
    const int key = clerk->Save(input);
    EXPECT_GT(key, 0) << "type " << input.type << ": " << clerk->LastBox();
    EXPECT_TRUE(clerk->Approve(input.type, key)) << "type " << input.type << ": " << clerk->LastBox();
    return key;
}

std::vector<std::string> Books() {
    static const char* const orders[][2] = {
        {"tJXC_CkDj01", "fInvID"},      {"tJXC_CkDj02", "fInvID,fInv1,fRowID"},
        {"tJXC_CkHt01", "fInvID"},      {"tJXC_CkHt02", "fInvID,fInv1,fRowID"},
        {"tJXC_CkJh01", "fInvID"},      {"tJXC_CkJh02", "fInvID,fInv1,fRowID"},
        {"tJXC_CkXjBj01", "fInvID"},    {"tJXC_CkXjBj02", "fInvID,fInv1,fRowID"},
        {"tJXC_CkTj", "fCkName,fCpID"}, {"tJXC_CkTj_tmp", "fCpID"},
        {"tAccountDetail", "fAcntNo"},  {"tJXC_CpGys", "fInvNo,fCpID"},
        {"tJXC_KhAdd", "fKhID,fKhAdd"}};
    std::vector<std::string> books;
    for (const auto& [table, order] : orders) {
        const Rows rows = Conn().Query(std::string("select * from ") + table + " Order By " + order);
        for (size_t row = 0; row < rows.Count(); ++row) {
            std::string text = table;
            for (size_t i = 0; i < rows.names.size(); ++i)
                text += " " + LowerCase(rows.names[i]) + "=" + rows.At(row, i).AsText();
            books.push_back(std::move(text));
        }
    }
    return books;
}

std::vector<std::string> Changes(const std::vector<std::string>& before,
                                 const std::vector<std::string>& after) {
    const std::multiset<std::string> was(before.begin(), before.end());
    const std::multiset<std::string> is(after.begin(), after.end());
    std::vector<std::string> changes;
    std::set_difference(was.begin(), was.end(), is.begin(), is.end(), std::back_inserter(changes));
    for (std::string& row : changes)
        row = "- " + row;
    std::vector<std::string> came;
    std::set_difference(is.begin(), is.end(), was.begin(), was.end(), std::back_inserter(came));
    for (const std::string& row : came)
        changes.push_back("+ " + row);
    return changes;
}

} // namespace jxc::test

// Finding a product or a customer by what the user typed, and the stock of a product.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "controls/control.h"
#include "database/connection.h"

namespace jxc {

// What is asked about a product, and what is found of it.
struct ProductSought {
    std::string warehouse = {}; // whose stock; "" for all together
    std::string code = {};      // typed; with `name` empty the search goes by code
    std::string name = {};      // typed; may hold two parts with a comma between, for name and specification
    std::string spec = {};
    std::string unit = {};
    std::string barCode = {};
    bool byBarCode = false; // no code was like the one typed, but one product has it as its bar code
    double stock = -1;      // negative: no stock figure is wanted
    double price[4] = {0, 0, 0, 0};
};

// The product's fCpID, 0 when nothing was found; the fields of `sought` are filled on success. An exact code
// wins over a pattern, and where no code is like it, a bar code is looked for; several hits open the product picker. A
// stopped product is never found.
std::int32_t FindProduct(ProductSought& sought);

// Whatever a picker leaves behind, session.SelectedProductID is afterwards what it was: a screen may hold its own there.
class SelectedProductStays {
  public:
    SelectedProductStays();
    ~SelectedProductStays();
    SelectedProductStays(const SelectedProductStays&) = delete;
    SelectedProductStays& operator=(const SelectedProductStays&) = delete;

  private:
    std::int32_t selected_;
};

// Lets the user pick a product in the product picker, which shows those that the text finds, by code or, with `byName`,
// by name; those that are suggested for it when it finds none so; or all of them when nothing is typed. The code of the
// one picked, "" for none. What a screen has selected stays so.
std::string PickProductCode(const std::string& typed, bool byName);

// The statements with which it finds an exact code and its stock, to be read ahead for many codes.
[[nodiscard]] std::vector<Connection::Expected> ProductStatements(const std::string& code,
                                                                  const std::string& warehouse);

// The parts of a name typed with a comma of either form between; one part without a comma. And the test of a product's
// name or specification by one of them.
[[nodiscard]] std::vector<std::string> NameParts(const std::string& typed);
[[nodiscard]] std::string NameOrSpecTest(const std::string& typed);

// A product as lines show it: specification and name.
std::string NameAndSpec(const std::string& name, const std::string& spec);

// Stock of a product in a warehouse, with "" in all warehouses of the table together.
[[nodiscard]] double GetStockQty(const std::string& warehouse, std::int32_t fCpID);

// The same of several products at once, by product; one without stock is not among them.
std::map<std::int64_t, double> GetStockQtys(const std::string& warehouse,
                                            std::span<const std::int64_t> products);
[[nodiscard]] std::string StockQtysStatement(const std::string& warehouse,
                                             std::span<const std::int64_t> products);

// Fills `list` with the cards that the text finds, an exact code first, else a pattern over code and name, at
// most 101; selects the first without firing its event. The number of rows; an empty text leaves the list
// alone and gives 0.
int FindCustomerCard(ListBox& list, const std::string& text);

// A customer list's row: the name in 80 characters, directly followed by the card number.
[[nodiscard]] std::string CustomerRow(const std::string& companyName, std::int64_t id);
// The name and the number of such a row; "" and 0 for an empty one.
[[nodiscard]] std::string CustomerNameOf(const std::string& row);
[[nodiscard]] std::int64_t CustomerIdOf(const std::string& row);

// Adds the filter on active warehouses of a kind (a type's fSetCkType1) to a statement without a Where.
[[nodiscard]] std::string WarehouseFilter(int kind, const std::string& base);

} // namespace jxc

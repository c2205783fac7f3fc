// The numbers by which the system knows document types and the choices of their rows. They stand in the company's tables
// and in hosts' calls, so they are numbers that have names here.
#pragma once

namespace jxc {

// Document types (fSetNo, fInvType); the return of a type is its negative.
namespace DocType {
constexpr int Opening = 0;
constexpr int Receipt = 1;
constexpr int Issue = 2;
constexpr int Transfer = 3;
constexpr int Stocktake = 4;
constexpr int Retail = 5;
constexpr int Dispatch = 6;   // to a consignee
constexpr int Settlement = 7; // of what a consignee has sold
constexpr int Plan = 20;
constexpr int Enquiry = 21;
constexpr int Quotation = 22;
constexpr int PurchaseOrder = 23;
constexpr int SalesOrder = 24;
constexpr int Assembly = 31;
constexpr int Dismantling = 32;

// The types that move stock, but assembly and dismantling, lie below; and all types below the second, where the number
// series of account entries begin.
constexpr int FirstBeyondStock = 10;
constexpr int FirstBeyondDocuments = 50;
} // namespace DocType

// A choice that is not made, in every list column.
constexpr int kNoChoice = -1;

// What stock statistics count a document as (fSetTjType).
namespace Statistics {
constexpr int Opening = 0;
constexpr int Receipt = 1;
constexpr int Issue = 2;
constexpr int Transfer = 3;
constexpr int Stocktake = 4;
} // namespace Statistics

// Whose document it is (fSetKhType); cards have the same kinds.
namespace Partner {
constexpr int Any = 0;
constexpr int Supplier = 1;
constexpr int Dealer = 2;
constexpr int Consignee = 3;
} // namespace Partner

// What the approval enters into the customer's account (fSetWlType), and into the money account (fSetZjType).
namespace Owed {
constexpr int Receivable = 1;
constexpr int Payable = 2;
} // namespace Owed
namespace Cash {
constexpr int Paid = 3;
constexpr int Received = 4;
} // namespace Cash

// The kind of a warehouse (fSetCkType1, fSetCkType2).
namespace WarehouseKind {
constexpr int Any = 0;
constexpr int HeadOffice = 1;
constexpr int Retail = 2;
constexpr int Consignment = 3;
constexpr int Production = 4;
constexpr int NotConsignment = 5;
} // namespace WarehouseKind

// Which way goods go (fSetCrType1, and fInvInOut of a line).
namespace Direction {
constexpr int In = 1;
constexpr int Out = 2;
} // namespace Direction

// The price that a line shows (fSetDjType1) or takes (fSetDjType2): 1 to 4 are a product's fCpPrice0 to fCpPrice3.
namespace PriceKind {
constexpr int Cost = 1;
constexpr int Wholesale = 2;
constexpr int Consignment = 3;
constexpr int Retail = 4;
constexpr int Discounted = 5; // reference price times discount
} // namespace PriceKind

} // namespace jxc

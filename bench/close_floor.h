// The bare statements of a month's end, as one would write them for the engine at hand, each group in one transaction; and a
// company to run them on.
#pragma once

namespace jxc::bench {

// November 2026: so many lines, ten to a document, of receipts, issues, retail and transfers, among 20,000 products in four
// warehouses. Closed months before it: copies of the month under other keys.
void FillMonth(int lines);
void FillClosedMonths(int months);

// The statistics of November, its close, and that close taken back.
void RebuildFloor();
void CloseFloor();
void ReverseFloor();

} // namespace jxc::bench

#include "host/window/recent_documents.h"

#include <QHeaderView>

#include "base/text.h"
#include "database/recordset.h"
#include "session/company/open_connection.h"
#include "session/lookups/book.h"
#include "session/session.h"
#include "view/qt_text.h"

namespace jxc {

RecentDocuments::RecentDocuments(std::function<void(int, std::int32_t)> open)
    : QTableWidget(0, 6), open_(std::move(open)) {
    setObjectName("recentDocuments");
    setHorizontalHeaderLabels({"日期", "单号", "客户", "金额", "制单", "审核"});
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setHighlightSections(false);
    for (const auto& [column, width] : {std::pair(0, 90), {1, 130}, {2, 200}, {3, 100}, {4, 70}, {5, 70}})
        setColumnWidth(column, width);
    connect(this, &QTableWidget::itemActivated, this,
            [this](QTableWidgetItem* item) { OpenRow(item->row()); });
}

void RecentDocuments::Show(int type) {
    type_ = type;
    setRowCount(0);
    const std::string stem = BookStem(type, false);
    Connection connection;
    OpenOfSession(connection);
    Recordset found(
        connection,
        "Select Top 15 a.fInvDate,a.fInvNo,c.CompName,a.fInvJE,a.fInvDLR,a.fInvSHR,a.fInvID From " + stem +
            "01 a Left Join Cards c On a.fKhID=c.fID Where a.fInvType=" + std::to_string(type) +
            " Order By a.fInvNo Desc,a.fInvID Desc");
    for (; !found.AtEnd(); found.MoveNext()) {
        const int row = rowCount();
        insertRow(row);
        for (int column = 0; column < columnCount(); ++column) {
            const Value& cell = found[static_cast<size_t>(column)];
            const bool amount = column == 3;
            auto* item = new QTableWidgetItem(amount        ? Q(FormatFixed(cell.AsDouble(), 2, true))
                                              : column == 0 ? Q(cell.AsText().substr(0, 10))
                                                            : Q(cell.AsText()));
            item->setTextAlignment((amount ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
            setItem(row, column, item);
        }
        item(row, 0)->setData(Qt::UserRole, static_cast<int>(found["fInvID"].AsLong()));
    }
}

void RecentDocuments::OpenRow(int row) {
    open_(type_, item(row, 0)->data(Qt::UserRole).toInt());
}

} // namespace jxc

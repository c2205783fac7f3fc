#include "view/paper.h"

namespace jxc {

QPageLayout StandardPage(QPageLayout::Orientation orientation) {
    return {QPageSize(QPageSize::A4), orientation, QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter};
}

QString PlaceText(int page, int pages) {
    return QString("第 %1 页，共 %2 页").arg(page).arg(pages);
}

} // namespace jxc

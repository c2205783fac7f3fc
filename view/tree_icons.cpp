#include "view/tree_icons.h"

#include <map>

#include <QPainter>

namespace jxc {

namespace {

// A sign on a coloured ground: told apart by those who do not see the colours too.
struct Sign {
    const char* letter;
    QRgb ground;
};

const std::map<std::string, Sign>& Signs() {
    static const std::map<std::string, Sign> signs{
        {"mycomp", {"司", qRgb(62, 74, 92)}},    {"store", {"总", qRgb(31, 95, 168)}},
        {"storeLs", {"零", qRgb(28, 128, 74)}},  {"storeDx", {"代", qRgb(183, 98, 16)}},
        {"storeSc", {"产", qRgb(121, 70, 150)}}, {"stopUse", {"停", qRgb(140, 140, 140)}}};
    return signs;
}

QIcon Drawn(const Sign& sign) {
    constexpr int kSharp = 2; // pixels of the picture for one of a plain display
    QPixmap picture(kTreeIconSize * kSharp, kTreeIconSize * kSharp);
    picture.setDevicePixelRatio(kSharp);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(sign.ground));
    const QRectF ground(1, 1, kTreeIconSize - 2, kTreeIconSize - 2);
    painter.drawRoundedRect(ground, 3, 3);
    QFont font = painter.font();
    font.setPixelSize(kTreeIconSize * 13 / 20);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(ground, Qt::AlignCenter, QString::fromUtf8(sign.letter));
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected); // as it is, not tinted
    return icon;
}

} // namespace

QIcon TreeIcon(const std::string& word) {
    const auto sign = Signs().find(word);
    return sign == Signs().end() ? QIcon() : Drawn(sign->second);
}

} // namespace jxc

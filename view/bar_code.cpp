#include "view/bar_code.h"

#include <memory>

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextObjectInterface>

#include <zint.h>

#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr int kCodeObject = QTextFormat::UserObject + 1;
constexpr int kNameProperty = QTextFormat::UserProperty + 1;
constexpr int kSizeProperty = QTextFormat::UserProperty + 2;
constexpr QSizeF kDefaultSize{150, 36};
constexpr int kQuiet = 10, kQuietSquare = 4; // modules beside the code
const QString kBars = "barcode:", kSquare = "qrcode:";

struct Symbol {
    void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};
using SymbolOwner = std::unique_ptr<zint_symbol, Symbol>;

// Null for what cannot be coded.
SymbolOwner Encode(const QString& name) {
    const bool square = name.startsWith(kSquare);
    const std::string text = S(name.mid(square ? kSquare.size() : kBars.size()));
    SymbolOwner symbol(ZBarcode_Create());
    if (!symbol || text.empty())
        return nullptr;
    symbol->symbology = square ? BARCODE_QRCODE : BARCODE_CODE128;
    symbol->input_mode = UNICODE_MODE;
    const int told = ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char*>(text.data()),
                                     static_cast<int>(text.size()));
    return told < ZINT_ERROR ? std::move(symbol) : nullptr; // a warning is no failure
}

bool IsSet(const zint_symbol& symbol, int row, int module) {
    return (symbol.encoded_data[row][module >> 3] >> (module & 7) & 1) != 0;
}

// In the middle, in the largest whole number of dots a module that fits; on a window that is too coarse for one, in parts
// of dots, to be looked at only.
void Paint(QPainter& painter, const QRectF& box, const zint_symbol& symbol, bool square) {
    const QTransform toDevice = painter.transform();
    const QRectF device = toDevice.mapRect(box);
    const int quiet = square ? kQuietSquare : kQuiet;
    const int wide = symbol.width + 2 * quiet, high = square ? symbol.rows + 2 * quiet : 1;
    const double room =
        square ? std::min(device.width() / wide, device.height() / high) : device.width() / wide;
    const double dots = room >= 1 ? std::floor(room) : room;
    const double left = std::round(device.center().x() - dots * wide / 2) + dots * quiet;
    const double top =
        square ? std::round(device.center().y() - dots * high / 2) + dots * quiet : std::round(device.top());
    const double height = square ? dots : std::round(device.height());
    painter.save();
    painter.setTransform(QTransform());
    painter.setRenderHint(QPainter::Antialiasing, room < 1);
    for (int row = 0; row < (square ? symbol.rows : 1); ++row)
        for (int module = 0; module < symbol.width; ++module) {
            if (!IsSet(symbol, row, module))
                continue;
            int run = 1;
            while (module + run < symbol.width && IsSet(symbol, row, module + run))
                ++run;
            painter.fillRect(QRectF(left + module * dots, top + row * dots, run * dots, height), Qt::black);
            module += run;
        }
    painter.restore();
}

class CodeObject : public QObject, public QTextObjectInterface {
  public:
    using QObject::QObject;
    // What tells the toolkit that this is a text object; written out, because nothing else here needs its compiler.
    void* qt_metacast(const char* asked) override {
        const bool isThis = std::string_view(asked) == qobject_interface_iid<QTextObjectInterface*>();
        return isThis ? static_cast<QTextObjectInterface*>(this) : QObject::qt_metacast(asked);
    }
    // Templates give sizes in CSS pixels, of which 96 are an inch.
    QSizeF intrinsicSize(QTextDocument* document, int, const QTextFormat& format) override {
        const QPaintDevice* device = document->documentLayout()->paintDevice();
        return format.property(kSizeProperty).toSizeF() * (device ? device->logicalDpiY() / 96.0 : 1);
    }
    void drawObject(QPainter* painter, const QRectF& box, QTextDocument*, int,
                    const QTextFormat& format) override {
        const QString name = format.property(kNameProperty).toString();
        if (const SymbolOwner symbol = Encode(name))
            Paint(*painter, box, *symbol, name.startsWith(kSquare));
        else
            painter->drawText(box, Qt::AlignCenter | Qt::TextWrapAnywhere, name.mid(name.indexOf(':') + 1));
    }
};

} // namespace

std::vector<QTextCursor> ImagesOf(QTextDocument& document) {
    std::vector<QTextCursor> images;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextFragment fragment = piece.fragment();
            for (int at = 0; fragment.charFormat().isImageFormat() && at < fragment.length(); ++at) {
                QTextCursor& image = images.emplace_back(&document);
                image.setPosition(fragment.position() + at);
                image.setPosition(fragment.position() + at + 1, QTextCursor::KeepAnchor);
            }
        }
    return images;
}

void TurnImagesIntoCodes(QTextDocument& document,
                         const std::function<std::string(const std::string& key)>& value) {
    document.documentLayout()->registerHandler(kCodeObject, new CodeObject(&document));
    for (QTextCursor& cursor : ImagesOf(document)) {
        const QTextImageFormat image = cursor.charFormat().toImageFormat();
        const QString name = image.name();
        const qsizetype colon = name.indexOf(':');
        if (!name.startsWith(kBars) && !name.startsWith(kSquare))
            continue;
        QSizeF size(image.width(), image.height());
        if (size.width() <= 0 || size.height() <= 0)
            size = kDefaultSize;
        QTextCharFormat code;
        code.setObjectType(kCodeObject);
        code.setProperty(kNameProperty, name.left(colon + 1) + Q(value(S(name.mid(colon + 1)))));
        code.setProperty(kSizeProperty, size);
        cursor.insertText(QString(QChar::ObjectReplacementCharacter), code);
    }
}

} // namespace jxc

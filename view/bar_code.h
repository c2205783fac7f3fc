// Pictures inside texts of the toolkit. An image "barcode:KEY" or "qrcode:KEY" becomes a code of what the key stands for,
// painted as bars on whole dots of the device, with the quiet zone that scanners need around it: a raster that is scaled
// cannot be read.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QTextCursor>
#include <QTextDocument>

namespace jxc {

// Each selects one image of the document; they stay right while the document is changed.
std::vector<QTextCursor> ImagesOf(QTextDocument& document);

// Turns the document's images of those names into codes, of the width and height that the image was given. A text that
// cannot be coded is written out instead.
void TurnImagesIntoCodes(QTextDocument& document,
                         const std::function<std::string(const std::string& key)>& value);

} // namespace jxc

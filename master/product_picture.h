// Where the picture of a product lies.
#pragma once

#include <string>

namespace jxc {

// The file to be shown, "" for none; and why there is none to show although one is named, "" for no reason.
struct ProductPicture {
    std::string file;
    std::string why;
};

// A PNG or JPEG file by the name that the product keeps: a path, or a name beside the company's file, or, where the
// company lies on a server, in the host's folder.
ProductPicture FindProductPicture(const std::string& name);

} // namespace jxc

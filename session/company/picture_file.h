// Where pictures of products and of the company lie.
#pragma once

#include <string>

namespace jxc {

// The file to be shown, "" for none; and why there is none to show although one is named, "" for no reason.
struct PictureFile {
    std::string file;
    std::string why;
};

// A PNG or JPEG file by the name that is kept: a path, or a name beside the company's file, or, where the
// company lies on a server, in the host's folder.
PictureFile FindPicture(const std::string& name);
// The company's own for its paper: logo.png or logo.jpg beside it. "" for none.
std::string CompanyLogo();

} // namespace jxc

// Templates of printed documents: HTML in bands, with keys that stand for what is printed.
//
//     <!--paper A5 landscape 8 10 8 10-->     size, direction and margins in millimetres: top, right, bottom, left
//     <style>td {border: 1px solid black}</style>
//     <!--header--> ...                       at the head of the first page
//     <!--continued--> ...                    at the head of every further page
//     <!--headings--> ...                     above the lines of every page
//     <!--row--> ...                          a line
//     <!--subtotal--> ...                     below the lines of every page
//     <!--total--> ...                        below the last line
//     <!--footer--> ...                       at the foot of every page
//
// Every band may be left out but the row. "<单号>" stands for a field of the document or the company, "<<编码>>" for a
// column of the line. A tag of HTML begins with a letter of ASCII; a key of that name goes before it. Further keys:
//
//     <页码> <页数> <打印时间> <单据名称>      the page, of how many, when it was printed, what it is
//     <<序号>>                                the line, counted from 1
//     <本页 金额> <累计 金额> <合计 金额>      sums of a column: of the page, up to its end, of all
//     <大写 金额合计>                         a field's figure in Chinese capitals
//     <img src="barcode:单号"> <img src="qrcode:单号"> <img src="logo">   a field as bar code, the company's picture
//
// Whatever replaces a key is text and never HTML, and no other picture, file or address is ever opened.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "session/components.h"

namespace jxc {

// A template that cannot be printed; the text is for people and names the place.
struct TemplateError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class Band { Header, Continued, Headings, Row, Subtotal, Total, Footer };
constexpr size_t kBands = 7;

struct PaperSize {
    std::string name;
    double width = 0, height = 0; // millimetres, upright; a height of 0 is a roll
};
// A4, A5, 241x140, 241x279 and 80, as templates name them.
const std::vector<PaperSize>& PaperSizes();

struct PaperTemplate {
    PaperSize size;
    bool landscape = false;
    std::array<double, 4> margins{}; // millimetres: top, right, bottom, left
    std::string style;               // a style sheet
    std::array<std::string, kBands> bands;

    const std::string& Of(Band band) const { return bands[static_cast<size_t>(band)]; }
};

// Reads a template. A TemplateError for an unknown paper, band or structure, and for what asks for a file.
PaperTemplate ParseTemplate(const std::string& text);

// What a key stands for, without its brackets; nothing for an unknown one.
using KeyValue = std::function<std::optional<std::string>(const std::string& key)>;

// A document to be printed by a template: its lines and what the keys stand for.
class TemplateData {
  public:
    // The job must outlive this. `printed` is the time that is told.
    TemplateData(const TemplatePrintJob& job, std::string printed);

    struct Page {
        int page = 1, pages = 1;
        size_t first = 0, end = 0; // its lines: from first, before end
    };

    size_t LineCount() const { return job_.lines.size(); }
    // The HTML of a band on a page, keys replaced. Of the row band `line` is the one told. A TemplateError names a key that
    // is not known.
    std::string Filled(const PaperTemplate& paper, Band band, const Page& page, size_t line = 0) const;
    // The value of a field, for bar codes; nothing for an unknown one.
    std::optional<std::string> Field(const std::string& key) const;
    // A TemplateError unless every key of the template is known.
    void RequireKnownKeys(const PaperTemplate& paper) const;

  private:
    std::optional<std::string> Value(const std::string& key, const Page& page) const;
    std::optional<std::string> Cell(const std::string& key, size_t line) const;
    std::optional<std::string> Sum(const std::string& column, size_t first, size_t end) const;
    std::optional<size_t> ColumnOf(const std::string& caption) const;

    const TemplatePrintJob& job_;
    const std::string printed_;
    std::map<std::string, std::string> fields_;
};

// Text as HTML shows it.
std::string EscapedHtml(const std::string& text);

} // namespace jxc

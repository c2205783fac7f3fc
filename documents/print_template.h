// A stored document's lines on paper by a designed template.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "controls/grid.h"
#include "documents/default_template.h"
#include "session/components.h"
#include "settings/type_row.h"

namespace jxc {

struct TemplateRequest {
    int mode = 1; // 3 lets the user change the template
    std::string title;
    const TypeRow* type = nullptr;
    std::string number;
    bool closed = false;  // reads the closed book
    std::int32_t key = 0; // of several documents of one number, as a plan makes them, the one printed
    FieldList fields;     // of company and document, as templates name them
    FieldList further;
    TypeCaptions captions;
    const Grid* shape = nullptr; // a grid of the type's lines: which columns people see, and how wide
};

// What the printer is handed: by the company's own template of the type, or else by the default. Nothing for a document
// without lines. Reads only.
std::optional<TemplatePrintJob> TemplateJob(TemplateRequest request);

} // namespace jxc

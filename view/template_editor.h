// The editor of a template beside the pages that it gives.
#pragma once

#include <optional>

#include "session/components.h"

class QWidget;

namespace jxc {

// Modal; its window is named "templateEditor". The job as the company now prints it when something was kept, nothing when
// everything stayed.
std::optional<TemplatePrintJob> ChangeTemplate(const TemplatePrintJob& job, QWidget* parent);

} // namespace jxc

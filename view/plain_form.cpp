#include "view/plain_form.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

#include "controls/grid.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr int kMargin = 9;
constexpr int kGap = 6;
constexpr int kLeastField = 130; // pixels

bool IsField(const Control& control) {
    return control.kind == ControlKind::Text || control.kind == ControlKind::List ||
           control.kind == ControlKind::Date;
}

QWidget* NewWidget(const Control& control) {
    switch (control.kind) {
    case ControlKind::Text:
        return new QLineEdit;
    case ControlKind::List: {
        auto* list = new QComboBox;
        list->setEditable(static_cast<const ListBox&>(control).editable);
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        return list;
    }
    case ControlKind::Date: {
        auto* date = new QDateEdit;
        date->setCalendarPopup(true);
        return date;
    }
    case ControlKind::Check:
        return new QCheckBox;
    case ControlKind::Option:
        return new QRadioButton;
    case ControlKind::Button:
        return new QPushButton;
    case ControlKind::Grid:
        return new QTableView;
    default:
        return new QLabel;
    }
}

// Lays the parts of one form, and remembers its widgets for the order of tabs.
class FormBuilder {
  public:
    explicit FormBuilder(const Arrangement& arrangement) : arrangement_(arrangement), form_(new QWidget) {
        form_->setObjectName("form");
        form_->resize(arrangement.width, arrangement.height);
        auto* parts = new QVBoxLayout(form_.get());
        parts->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        parts->setSpacing(kGap + 2);
        if (!arrangement.above.empty())
            parts->addLayout(Rows(arrangement.above));
        parts->addLayout(Middle(), 1);
        parts->addLayout(Foot());
        OrderTabs();
    }

    std::unique_ptr<QWidget> Take() { return std::move(form_); }

  private:
    QWidget* Place(const Control& control) {
        QWidget* widget = NewWidget(control);
        widget->setObjectName(Q(control.name));
        if (control.kind != ControlKind::Label)
            placed_.push_back({widget, &control});
        return widget;
    }

    QLabel* CaptionOf(const Control& control, QWidget* field) {
        auto* label = new QLabel(Q(control.caption));
        label->setTextFormat(Qt::PlainText);
        label->setObjectName("label_" + Q(control.name));
        label->setBuddy(field);
        return label;
    }

    // Captions in the even columns, fields in the odd ones, what has no field behind them.
    QGridLayout* Rows(const std::vector<Arrangement::Row>& rows) {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(kGap);
        grid->setVerticalSpacing(kGap);
        int columns = 0;
        for (size_t at = 0; at < rows.size(); ++at)
            columns = std::max(columns, AddRow(*grid, static_cast<int>(at), rows[at]));
        for (int column = 1; column < columns; column += 2)
            grid->setColumnStretch(column, 1);
        return grid;
    }

    // The number of columns that the row's fields take.
    int AddRow(QGridLayout& grid, int row, const Arrangement::Row& controls) {
        int column = 0;
        size_t at = 0;
        for (; at < controls.size(); ++at, column += 2) {
            const Control& first = *controls[at];
            if (first.kind == ControlKind::Grid)
                return AddGrid(grid, row, first);
            if (IsField(first)) {
                QWidget* field = Place(first);
                if (!first.caption.empty())
                    grid.addWidget(CaptionOf(first, field), row, column);
                grid.addWidget(field, row, column + 1);
                field->setMinimumWidth(kLeastField);
            } else if (first.kind == ControlKind::Check && at + 1 < controls.size() &&
                       IsField(*controls[at + 1])) {
                grid.addWidget(Place(first), row, column);
                QWidget* field = Place(*controls[++at]);
                field->setMinimumWidth(kLeastField);
                grid.addWidget(field, row, column + 1);
            } else {
                break;
            }
        }
        if (at < controls.size())
            grid.addLayout(Line({controls.begin() + static_cast<std::ptrdiff_t>(at), controls.end()}), row,
                           std::max(column, 1), 1, -1);
        return column;
    }

    int AddGrid(QGridLayout& grid, int row, const Control& control) {
        grid.addWidget(Place(control), row, 0, 1, -1);
        grid.setRowStretch(row, 1);
        return 0;
    }

    QHBoxLayout* Line(const Arrangement::Row& controls) {
        auto* line = new QHBoxLayout;
        line->setSpacing(kGap * 2);
        for (const Control* control : controls)
            line->addWidget(Place(*control));
        line->addStretch(1);
        return line;
    }

    QHBoxLayout* Middle() {
        auto* middle = new QHBoxLayout;
        middle->setSpacing(kGap * 2);
        if (arrangement_.grid) {
            QWidget* grid = Place(*arrangement_.grid);
            grid->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            middle->addWidget(grid, 3);
        }
        if (!arrangement_.fields.empty()) {
            auto* side = new QVBoxLayout;
            auto* rows = Rows(arrangement_.fields);
            const bool fills = arrangement_.fields.back().front()->kind == ControlKind::Grid;
            side->addLayout(rows, fills ? 1 : 0);
            if (!fills)
                side->addStretch(1);
            middle->addLayout(side, 2);
        }
        return middle;
    }

    QHBoxLayout* Foot() {
        auto* foot = new QHBoxLayout;
        for (const Control* command : arrangement_.commands)
            foot->addWidget(Place(*command));
        foot->addStretch(1);
        for (const Control* command : arrangement_.closingCommands)
            foot->addWidget(Place(*command));
        return foot;
    }

    // The place of a control in the order of tabs; those of one place follow each other as they stand. A query's fields
    // come before its ticks, then its commands and its grid; an editor's list before its fields, and saving behind them.
    // What leaves the screen is last.
    int TabPlace(const Control& control) const {
        enum { kFields, kTicks, kNext, kGrid, kOthers, kLeave };
        const auto stands = [&](const std::vector<Control*>& commands) {
            return std::ranges::find(commands, &control) != commands.end();
        };
        const auto& closing = arrangement_.closingCommands;
        const bool query = !arrangement_.above.empty() && arrangement_.fields.empty();
        const bool tick = control.kind == ControlKind::Check || control.kind == ControlKind::Option;
        if (stands(closing))
            return &control == closing.back() ? kLeave : query ? kOthers : kNext;
        if (stands(arrangement_.commands))
            return query ? kNext : kOthers;
        if (query && &control == arrangement_.grid)
            return kGrid;
        return query && tick ? kTicks : kFields;
    }

    void OrderTabs() {
        std::ranges::stable_sort(placed_, {}, [this](const Placed& one) { return TabPlace(*one.control); });
        for (size_t at = 1; at < placed_.size(); ++at)
            QWidget::setTabOrder(placed_[at - 1].widget, placed_[at].widget);
    }

    struct Placed {
        QWidget* widget;
        const Control* control;
    };
    const Arrangement& arrangement_;
    std::unique_ptr<QWidget> form_;
    std::vector<Placed> placed_; // in the order in which they stand
};

} // namespace

std::unique_ptr<QWidget> PlainForm(const Arrangement& arrangement) {
    return FormBuilder(arrangement).Take();
}

} // namespace jxc

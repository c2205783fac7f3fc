#include "view/plain_form.h"

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
        if (IsField(control))
            fields_.push_back(widget);
        else if (control.kind == ControlKind::Check || control.kind == ControlKind::Option)
            ticks_.push_back(widget);
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
            grid_ = Place(*arrangement_.grid);
            grid_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            middle->addWidget(grid_, 3);
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
            foot->addWidget(commands_.emplace_back(Place(*command)));
        foot->addStretch(1);
        for (const Control* command : arrangement_.closingCommands)
            foot->addWidget(closing_.emplace_back(Place(*command)));
        return foot;
    }

    // A list comes before the fields of its rows, and saving behind them; a query's grid behind its commands.
    void OrderTabs() {
        std::vector<QWidget*> order;
        const auto add = [&](const std::vector<QWidget*>& widgets) {
            order.insert(order.end(), widgets.begin(), widgets.end());
        };
        const bool editor = arrangement_.above.empty() || !arrangement_.fields.empty();
        if (editor && grid_)
            order.push_back(grid_);
        add(fields_);
        add(ticks_);
        add(editor ? closing_ : commands_);
        if (!editor && grid_)
            order.push_back(grid_);
        add(editor ? commands_ : closing_);
        for (size_t at = 1; at < order.size(); ++at)
            QWidget::setTabOrder(order[at - 1], order[at]);
    }

    const Arrangement& arrangement_;
    std::unique_ptr<QWidget> form_;
    QWidget* grid_ = nullptr;
    std::vector<QWidget*> fields_, ticks_, commands_, closing_;
};

} // namespace

std::unique_ptr<QWidget> PlainForm(const Arrangement& arrangement) {
    return FormBuilder(arrangement).Take();
}

} // namespace jxc

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
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>

#include "controls/grid.h"
#include "controls/tree.h"
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
    case ControlKind::Tree:
        return new QTreeWidget;
    default:
        return new QLabel;
    }
}

// What takes a whole row, and the height that is left over.
bool TakesTheRow(const Control& control) {
    return control.kind == ControlKind::Grid || control.kind == ControlKind::Picture;
}

// What stands for a field's caption before it.
bool NamesAField(const Control& control) {
    return control.kind == ControlKind::Check || control.kind == ControlKind::Label;
}

// The place of a control in the order of tabs; those of one place follow each other as they stand. A query's fields
// come before its ticks, then its commands and its grid; an editor's list before its fields, and saving behind them.
// What leaves the screen is last.
int TabPlace(const Arrangement& arrangement, const Control& control) {
    enum { kFields, kTicks, kNext, kGrid, kOthers, kLeave };
    const auto stands = [&](const std::vector<Control*>& commands) {
        return std::ranges::find(commands, &control) != commands.end();
    };
    const auto& closing = arrangement.closingCommands;
    const bool query = arrangement.IsQuery();
    const bool tick = control.kind == ControlKind::Check || control.kind == ControlKind::Option;
    if (stands(closing))
        return &control == closing.back() ? kLeave : query ? kOthers : kNext;
    if (stands(arrangement.commands))
        return query ? kNext : kOthers;
    if (query && &control == arrangement.grid)
        return kGrid;
    return query && tick ? kTicks : kFields;
}

// Lays the parts of one form, and remembers its widgets for the order of tabs.
class FormBuilder {
  public:
    std::unique_ptr<QWidget> Form(const Arrangement& arrangement) {
        auto form = std::make_unique<QWidget>();
        form->setObjectName("form");
        form->resize(arrangement.width, arrangement.height);
        Fill(*form, arrangement);
        for (size_t at = 1; at < order_.size(); ++at)
            QWidget::setTabOrder(order_[at - 1], order_[at]);
        return form;
    }

  private:
    void Fill(QWidget& holder, const Arrangement& arrangement) {
        const size_t before = placed_.size();
        auto* parts = new QVBoxLayout(&holder);
        parts->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        parts->setSpacing(kGap + 2);
        if (!arrangement.above.empty())
            parts->addLayout(Rows(arrangement.above));
        if (arrangement.tabs)
            parts->addWidget(Pages(arrangement), 1);
        else
            parts->addLayout(Middle(arrangement), 1);
        if (!arrangement.IsEmpty())
            parts->addLayout(Foot(arrangement));
        TakeOrder(arrangement, before);
    }

    QTabWidget* Pages(const Arrangement& arrangement) {
        auto* tabs = new QTabWidget;
        tabs->setObjectName(Q(arrangement.tabs->name));
        for (size_t at = 0; at < arrangement.pages.size(); ++at) {
            auto* page = new QWidget;
            page->setObjectName(QString("tab_%1").arg(at));
            tabs->addTab(page, Q(arrangement.tabs->captions.at(at)));
            Fill(*page, arrangement.pages[at]);
        }
        return tabs;
    }

    QWidget* Place(const Control& control) {
        QWidget* widget = NewWidget(control);
        widget->setObjectName(Q(control.name));
        if (control.kind != ControlKind::Label && control.kind != ControlKind::Picture)
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
            const Control* second = at + 1 < controls.size() ? controls[at + 1] : nullptr;
            if (TakesTheRow(first))
                return AddWhole(grid, row, first);
            if (IsField(first)) {
                QWidget* field = PlaceField(grid, row, column, first);
                if (!first.caption.empty())
                    grid.addWidget(CaptionOf(first, field), row, column);
            } else if (NamesAField(first) && second && IsField(*second)) {
                QWidget* name = Place(first);
                grid.addWidget(name, row, column);
                QWidget* field = PlaceField(grid, row, column, *controls[++at]);
                if (auto* label = qobject_cast<QLabel*>(name))
                    label->setBuddy(field);
            } else {
                break;
            }
        }
        if (at < controls.size())
            grid.addLayout(Line({controls.begin() + static_cast<std::ptrdiff_t>(at), controls.end()}), row,
                           std::max(column, 1), 1, -1);
        return column;
    }

    QWidget* PlaceField(QGridLayout& grid, int row, int column, const Control& control) {
        QWidget* field = Place(control);
        field->setMinimumWidth(kLeastField);
        grid.addWidget(field, row, column + 1);
        return field;
    }

    int AddWhole(QGridLayout& grid, int row, const Control& control) {
        grid.addWidget(Place(control), row, 0, 1, -1);
        grid.setRowStretch(row, 1);
        return 0;
    }

    QHBoxLayout* Line(const Arrangement::Row& controls) {
        auto* line = new QHBoxLayout;
        line->setSpacing(kGap * 2);
        for (const Control* control : controls) {
            QWidget* widget = Place(*control);
            if (IsField(*control) && !control->caption.empty())
                line->addWidget(CaptionOf(*control, widget));
            line->addWidget(widget);
        }
        line->addStretch(1);
        return line;
    }

    QHBoxLayout* Middle(const Arrangement& arrangement) {
        auto* middle = new QHBoxLayout;
        middle->setSpacing(kGap * 2);
        const Control* large =
            arrangement.grid ? static_cast<const Control*>(arrangement.grid) : arrangement.tree;
        if (large) {
            QWidget* widget = Place(*large);
            widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            middle->addWidget(widget, 3);
        }
        if (!arrangement.fields.empty()) {
            auto* side = new QVBoxLayout;
            auto* rows = Rows(arrangement.fields);
            const bool fills = std::ranges::any_of(
                arrangement.fields, [](const Arrangement::Row& row) { return TakesTheRow(*row.front()); });
            side->addLayout(rows, fills ? 1 : 0);
            if (!fills)
                side->addStretch(1);
            middle->addLayout(side, 2);
        }
        return middle;
    }

    QHBoxLayout* Foot(const Arrangement& arrangement) {
        auto* foot = new QHBoxLayout;
        for (const Control* command : arrangement.commands)
            foot->addWidget(Place(*command));
        foot->addStretch(1);
        for (const Control* command : arrangement.closingCommands)
            foot->addWidget(Place(*command));
        return foot;
    }

    struct Placed {
        QWidget* widget;
        const Control* control;
    };

    // The widgets of one arrangement, placed since `from`, go behind those of its pages, which have their order.
    void TakeOrder(const Arrangement& arrangement, size_t from) {
        std::vector<Placed> own(placed_.begin() + static_cast<std::ptrdiff_t>(from), placed_.end());
        placed_.resize(from);
        std::ranges::stable_sort(own, {},
                                 [&](const Placed& one) { return TabPlace(arrangement, *one.control); });
        for (const Placed& one : own)
            order_.push_back(one.widget);
    }

    std::vector<Placed> placed_;  // of the arrangement in hand, as they stand
    std::vector<QWidget*> order_; // of tabs
};

} // namespace

std::unique_ptr<QWidget> PlainForm(const Arrangement& arrangement) {
    return FormBuilder().Form(arrangement);
}

} // namespace jxc

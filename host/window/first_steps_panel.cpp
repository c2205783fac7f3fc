#include "host/window/first_steps_panel.h"

#include <QGridLayout>
#include <QLabel>

#include "host/window/command_button.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

struct Told {
    FirstStep step;
    const char *name, *caption, *purpose;
};
constexpr Told kSteps[] = {
    {FirstStep::Warehouse, "stepWarehouse", "仓库", "货物放在哪里。"},
    {FirstStep::Product, "stepProduct", "产品", "买卖的货物：编码、品名、单位与价格。按 F2 增加。"},
    {FirstStep::Card, "stepCard", "供应商与客户", "向谁进货，卖给谁。按 F2 增加。"},
    {FirstStep::Opening, "stepOpening", "期初库存", "开帐时已有的库存；没有就跳过（按 ↓）。"},
    {FirstStep::Document, "stepDocument", "", ""}, // follows from the company
};

QString DocumentCaption(const FirstSteps& steps) {
    return steps.waiting == 0 ? "第一张入库单" : "审核 " + Q(steps.waitingNumber);
}

QString DocumentPurpose(const FirstSteps& steps) {
    return steps.waiting == 0 ? "从供应商进货；存盘以后审核，库存就有了。"
                              : "单据已经存盘；审核以后才计入库存与帐款。";
}

} // namespace

FirstStepsPanel::FirstStepsPanel(const std::function<void(FirstStep)>& take) {
    setObjectName("firstSteps");
    setFrameShape(StyledPanel);
    auto* grid = new QGridLayout(this);
    grid->setColumnStretch(2, 1);
    grid->setHorizontalSpacing(12);
    auto* heading = new QLabel("开始使用（回车打开下一步）");
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    grid->addWidget(heading, 0, 0, 1, 3);
    for (const Told& told : kSteps) {
        const Row row{told.step, new QLabel, new CommandButton(told.caption), new QLabel(told.purpose)};
        row.button->setObjectName(told.name);
        row.button->setMinimumSize(190, 30);
        row.tick->setFixedWidth(18);
        connect(row.button, &QPushButton::clicked, this, [take, step = told.step] { take(step); });
        const int line = static_cast<int>(rows_.size()) + 1;
        grid->addWidget(row.tick, line, 0);
        grid->addWidget(row.button, line, 1);
        grid->addWidget(row.purpose, line, 2);
        rows_.push_back(row);
    }
    hide();
}

void FirstStepsPanel::Show(const FirstSteps& steps) {
    next_ = NextStep(steps);
    for (const Row& row : rows_) {
        row.tick->setText(IsTaken(steps, row.step) ? "✓" : row.step == next_ ? "▶" : "");
        if (row.step == FirstStep::Document) {
            row.button->setText(DocumentCaption(steps));
            row.purpose->setText(DocumentPurpose(steps));
        }
    }
    setVisible(!steps.done);
}

void FirstStepsPanel::FocusNext() {
    for (const Row& row : rows_)
        if (row.step == next_)
            row.button->setFocus();
}

} // namespace jxc

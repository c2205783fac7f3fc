#include "view/template_editor.h"

#include "session/company/picture_file.h"
#include "session/printing/paper_template.h"
#include "session/printing/template_draft.h"
#include "view/band_paper.h"
#include "view/page_browser.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr int kAfterTyping = 400; // milliseconds until the pages follow
constexpr double kMostMargin = 60;

// What stands in the pages' place before there are any.
class EmptyPaper : public Paper {
  public:
    EmptyPaper() : Paper(StandardPage(QPageLayout::Portrait)) {}
    int PageCount() const override { return 1; }
    void DrawPage(QPainter&, int) const override {}
    std::unique_ptr<Paper> On(const QPageLayout&) const override { return std::make_unique<EmptyPaper>(); }
};

class TemplateEditor : public QDialog {
  public:
    TemplateEditor(const TemplatePrintJob& job, QWidget* parent)
        : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint), draft_(job),
          paper_(std::make_unique<EmptyPaper>()), pages_(new PageBrowser(*paper_)) {
        setObjectName("templateEditor");
        setWindowTitle(Q(job.typeName + "：打印模板"));
        resize(1280, 720);
        auto* layout = new QVBoxLayout(this);
        auto* halves = new QSplitter;
        halves->addWidget(WritingSide());
        halves->addWidget(pages_);
        halves->setSizes({620, 660});
        layout->addWidget(halves, 1);
        layout->addWidget(fault_);
        layout->addLayout(Commands());
        fault_->setObjectName("fault");
        fault_->setWordWrap(true);
        fault_->setStyleSheet("color: #b00000");
        fault_->setMinimumHeight(fontMetrics().height());
        afterTyping_.setSingleShot(true);
        afterTyping_.setInterval(kAfterTyping);
        connect(&afterTyping_, &QTimer::timeout, this, [this] { Render(); });
        ShowText();
        text_->document()->clearUndoRedoStacks();
        connect(text_, &QPlainTextEdit::textChanged, &afterTyping_, qOverload<>(&QTimer::start));
        Render();
        pages_->FitInto(650);
        AddKeys();
        text_->setFocus();
    }

    std::optional<TemplatePrintJob> Result() const {
        return draft_.WasKept() ? std::optional(draft_.Job()) : std::nullopt;
    }

    void reject() override {
        TakeText();
        if (draft_.MayClose())
            QDialog::reject();
    }
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        reject();
    }

  private:
    QWidget* WritingSide() {
        auto* side = new QWidget;
        auto* layout = new QVBoxLayout(side);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addLayout(PaperRow());
        text_->setObjectName("text");
        text_->setTabChangesFocus(true);
        text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        keys_->setObjectName("keys");
        for (const std::string& key : draft_.Keys())
            keys_->addItem(Q(key));
        connect(keys_, &QListWidget::itemActivated, this,
                [this](const QListWidgetItem* key) { Insert(key->text()); });
        auto* label = new QLabel("可插入的字段(&K)：双击或按 Enter 插入到光标处");
        label->setBuddy(keys_);
        layout->addWidget(text_, 3);
        layout->addWidget(label);
        layout->addWidget(keys_, 1);
        return side;
    }

    QLayout* PaperRow() {
        auto* row = new QHBoxLayout;
        const auto caption = [&](const char* text, QWidget* of) {
            auto* label = new QLabel(text);
            label->setBuddy(of);
            row->addWidget(label);
            row->addWidget(of);
        };
        sizes_->setObjectName("papers");
        for (const PaperSize& size : PaperSizes())
            sizes_->addItem(Q(size.name));
        caption("纸张(&P)", sizes_);
        lying_->setObjectName("landscape");
        row->addWidget(lying_);
        const char* captions[] = {"页边距(&M) 上", "右", "下", "左"};
        for (size_t side = 0; side < margins_.size(); ++side) {
            margins_[side] = new QDoubleSpinBox;
            margins_[side]->setRange(0, kMostMargin);
            margins_[side]->setDecimals(1);
            margins_[side]->setObjectName("margin" + QString::number(side));
            connect(margins_[side], &QDoubleSpinBox::valueChanged, this, [this] { TakePaper(); });
            caption(captions[side], margins_[side]);
        }
        row->addStretch();
        connect(sizes_, &QComboBox::activated, this, [this] { TakePaper(); });
        connect(lying_, &QCheckBox::clicked, this, [this] { TakePaper(); });
        return row;
    }

    QLayout* Commands() {
        auto* row = new QHBoxLayout;
        row->addStretch();
        const auto add = [&](const char* name, const char* caption, auto action) {
            auto* button = new QPushButton(caption);
            button->setObjectName(name);
            button->setAutoDefault(false);
            connect(button, &QPushButton::clicked, this, action);
            row->addWidget(button);
        };
        add("save", "存盘(&S)", [this] { Save(); });
        add("default", "恢复默认(&D)", [this] { Restore(); });
        add("cancel", "取消(&C)", [this] { reject(); });
        return row;
    }

    // The text has the page keys for itself; with Alt they turn the pages.
    void AddKeys() {
        const auto on = [this](const QKeySequence& keys, auto action) {
            connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
        };
        on(Qt::ALT | Qt::Key_PageDown, [this] { pages_->TurnBy(1); });
        on(Qt::ALT | Qt::Key_PageUp, [this] { pages_->TurnBy(-1); });
        on(QKeySequence::Save, [this] { Save(); });
    }

    void TakeText() { draft_.text = S(text_->toPlainText()); }

    // As one step that can be undone.
    void ShowText() {
        QTextCursor all(text_->document());
        all.select(QTextCursor::Document);
        all.insertText(Q(draft_.text));
        text_->moveCursor(QTextCursor::Start);
    }

    void Insert(const QString& key) {
        text_->insertPlainText(key);
        text_->setFocus();
    }

    void TakePaper() {
        if (showingPaper_)
            return;
        TakeText();
        PaperChoice paper{S(sizes_->currentText()), lying_->isChecked(), {}};
        for (size_t side = 0; side < margins_.size(); ++side)
            paper.margins[side] = margins_[side]->value();
        draft_.TakePaper(paper);
        ShowText();
        Render();
    }

    void ShowPaper() {
        const auto paper = draft_.Paper();
        if (!paper)
            return;
        showingPaper_ = true;
        sizes_->setCurrentText(Q(paper->name));
        lying_->setChecked(paper->landscape);
        for (size_t side = 0; side < margins_.size(); ++side)
            margins_[side]->setValue(paper->margins[side]);
        showingPaper_ = false;
    }

    // A text that cannot be printed leaves the pages as they were.
    void Render() {
        afterTyping_.stop();
        TakeText();
        ShowPaper();
        try {
            auto paper = std::make_unique<BandPaper>(draft_.Job(), Q(CompanyLogo()));
            pages_->Take(*paper);
            paper_ = std::move(paper);
            fault_->clear();
        } catch (const TemplateError& error) {
            const int line = draft_.LineOf(error.what());
            fault_->setText((line > 0 ? "第 " + QString::number(line) + " 行：" : "") + Q(error.what()));
        }
    }

    void Save() {
        TakeText();
        if (draft_.Save())
            accept();
        else
            Render();
    }

    void Restore() {
        TakeText();
        if (!draft_.Restore())
            return;
        ShowText();
        Render();
    }

    TemplateDraft draft_;
    std::unique_ptr<Paper> paper_;
    PageBrowser* pages_;
    QPlainTextEdit* text_ = new QPlainTextEdit;
    QListWidget* keys_ = new QListWidget;
    QComboBox* sizes_ = new QComboBox;
    QCheckBox* lying_ = new QCheckBox("横向(&L)");
    std::array<QDoubleSpinBox*, 4> margins_{};
    QLabel* fault_ = new QLabel;
    QTimer afterTyping_;
    bool showingPaper_ = false;
};

} // namespace

std::optional<TemplatePrintJob> ChangeTemplate(const TemplatePrintJob& job, QWidget* parent) {
    TemplateEditor editor(job, parent);
    editor.exec();
    return editor.Result();
}

} // namespace jxc

// Trees: selected with the mouse or the arrow keys, gone into by a double click or Enter, nodes dragged onto others.

#include "controls/gestures.h"
#include "controls/tree.h"
#include "view/binding.h"
#include "view/qt_text.h"
#include "view/screen_window.h"
#include "view/tree_icons.h"

namespace jxc {

namespace {

class TreeBinding : public Binding {
  public:
    TreeBinding(ScreenWindow& window, Tree& tree, QTreeWidget& shown)
        : Binding(window, tree, shown), tree_(tree), shown_(shown) {
        shown_.setHeaderHidden(true);
        shown_.setDragDropMode(tree.onDrop ? QAbstractItemView::InternalMove : QAbstractItemView::NoDragDrop);
        shown_.setIconSize({kTreeIconSize, kTreeIconSize});
        shown_.setExpandsOnDoubleClick(false); // it is always expanded
        Watch(*shown_.viewport());
        connect(&shown_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
            window_.Do([&] { DoubleClickNode(window_.Shown(), tree_, PlaceOf(item)); });
        });
        connect(&shown_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
            if (item && quiet_ == 0)
                window_.Do([&] { SelectNode(window_.Shown(), tree_, PlaceOf(item)); });
        });
    }

    void Refresh() override {
        Binding::Refresh();
        ++quiet_;
        if (!ShowsNodes())
            Fill();
        shown_.setCurrentItem(tree_.selected >= 0 ? items_[static_cast<size_t>(tree_.selected)] : nullptr);
        --quiet_;
    }

    // The model moves the node, not the widget.
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Drop)
            return Binding::eventFilter(object, event);
        auto* drop = static_cast<QDropEvent*>(event);
        QTreeWidgetItem* onto = shown_.itemAt(drop->position().toPoint());
        QTreeWidgetItem* node = shown_.currentItem();
        if (node && onto)
            window_.Do([&] { DropNode(window_.Shown(), tree_, PlaceOf(node), PlaceOf(onto)); });
        drop->setDropAction(Qt::IgnoreAction);
        drop->accept();
        return true;
    }

  private:
    int PlaceOf(QTreeWidgetItem* item) const {
        return static_cast<int>(std::find(items_.begin(), items_.end(), item) - items_.begin());
    }

    bool ShowsNodes() const {
        return std::equal(nodes_.begin(), nodes_.end(), tree_.nodes.begin(), tree_.nodes.end(),
                          [](const TreeNode& a, const TreeNode& b) {
                              return a.key == b.key && a.caption == b.caption && a.parent == b.parent &&
                                     a.icon == b.icon;
                          });
    }

    void Fill() {
        shown_.clear();
        items_.clear();
        nodes_ = tree_.nodes;
        for (const TreeNode& node : nodes_) {
            auto* item = node.parent < 0 ? new QTreeWidgetItem(&shown_)
                                         : new QTreeWidgetItem(items_[static_cast<size_t>(node.parent)]);
            item->setText(0, Q(node.caption));
            item->setIcon(0, TreeIcon(node.icon));
            items_.push_back(item);
        }
        shown_.expandAll();
    }

    Tree& tree_;
    QTreeWidget& shown_;
    std::vector<TreeNode> nodes_; // as they were last filled in
    std::vector<QTreeWidgetItem*> items_;
    int quiet_ = 0;
};

} // namespace

std::unique_ptr<Binding> BindTree(ScreenWindow& window, Control& control, QWidget& widget) {
    auto* tree = dynamic_cast<Tree*>(&control);
    if (!tree || !Fits(control, widget))
        return nullptr;
    return std::make_unique<TreeBinding>(window, *tree, static_cast<QTreeWidget&>(widget));
}

} // namespace jxc

// The list under a line of text while a person types: what is suggested, to be chosen with the arrows or the mouse. It never
// has the focus, and never takes a key that types. Enter takes only a row that the person has chosen, so what is typed or
// scanned at speed goes its own way.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include "controls/suggestions.h"

class QFrame;
class QLabel;
class QTableWidget;

namespace jxc {

class SuggestPopup : public QObject {
  public:
    struct Source {
        std::function<Suggestions(const std::string& typed)> suggest;
        std::function<void(const SuggestedRow& taken)> take;
        std::function<void(const std::string& typed)> pick; // F3; null for none
    };
    // Lives as long as the line. Its keys come here before they go anywhere else: make it behind other filters.
    SuggestPopup(QLineEdit& line, Source source);
    ~SuggestPopup() override;

    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    bool OnKey(const QKeyEvent& key);
    bool MoveChoice(int key);
    void GetReady(); // once, when the person first comes here
    void Search();
    void Show(Suggestions found);
    void PlaceUnderLine();
    void BuildList();
    void Hide();
    void Take(int row);
    bool IsShown() const;

    QLineEdit& line_;
    Source source_;
    QTimer pause_; // of the person's typing, before it is searched for
    QString searched_;
    bool ready_ = false;
    Suggestions shown_;
    QPointer<QFrame> list_; // made when it is first shown; a child of the window
    QTableWidget* rows_ = nullptr;
    QLabel* more_ = nullptr;
};

} // namespace jxc

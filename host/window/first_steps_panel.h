// The steps to a new company's first approved document, a button each, with a tick at those that are taken.
#pragma once

#include <functional>
#include <vector>

#include <QFrame>

#include "host/first_steps.h"

class QLabel;
class QPushButton;

namespace jxc {

class FirstStepsPanel : public QFrame {
  public:
    // `take` opens what the step is done with.
    explicit FirstStepsPanel(const std::function<void(FirstStep)>& take);

    // Hidden once they are done.
    void Show(const FirstSteps& steps);
    // The button of the next step, which Enter presses then.
    void FocusNext();

  private:
    struct Row {
        FirstStep step;
        QLabel* tick;
        QPushButton* button;
        QLabel* purpose;
    };
    std::vector<Row> rows_;
    FirstStep next_ = FirstStep::Warehouse;
};

} // namespace jxc

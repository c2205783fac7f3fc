// Paper as a test reads it: every text with its place, as a printer is given it.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include "view/paper.h"
#include "view/qt_text.h"

namespace jxc::test {

struct Printed {
    std::string text;
    QRectF place; // in points, from the corner of the printable area
};

inline constexpr int kDots = 10;   // a point
inline constexpr double kHigh = 4; // of a text above its baseline, about

class RecordingEngine : public QPaintEngine {
  public:
    RecordingEngine() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawPath(const QPainterPath&) override {}
    // A text comes in parts, one a script: those that touch are put together again.
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QRectF place(at.x() / kDots, at.y() / kDots - kHigh, item.width() / kDots, kHigh);
        const bool goesOn = !printed.empty() && std::abs(printed.back().place.top() - place.top()) < 0.01 &&
                            std::abs(printed.back().place.right() - place.left()) < 0.3;
        if (!goesOn)
            return printed.push_back({S(item.text()), place});
        printed.back().text += S(item.text());
        printed.back().place.setRight(place.right());
    }
    Type type() const override { return User; }
    std::vector<Printed> printed;
};

class RecordingPaper : public QPaintDevice {
  public:
    QPaintEngine* paintEngine() const override { return &engine; }
    mutable RecordingEngine engine;

  protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 20'000;
        case PdmDevicePixelRatio:
        case PdmNumColors:
            return 1;
        case PdmDevicePixelRatioScaled:
            return 1 << 16;
        case PdmDepth:
            return 32;
        default:
            return 72 * kDots; // an inch
        }
    }
};

inline std::vector<Printed> PageOf(const Paper& paper, int page) {
    RecordingPaper device;
    QPainter painter(&device);
    paper.DrawPage(painter, page);
    painter.end();
    return device.engine.printed;
}

inline const Printed* Find(const std::vector<Printed>& page, const std::string& text) {
    const auto found =
        std::find_if(page.begin(), page.end(), [&](const Printed& part) { return part.text == text; });
    return found == page.end() ? nullptr : &*found;
}

inline bool Holds(const std::vector<Printed>& page, const std::string& text) {
    return Find(page, text) != nullptr;
}

} // namespace jxc::test

// The last documents of one type, shown beside the commands of the main window.
#pragma once

#include <functional>

#include <QTableWidget>

namespace jxc {

class RecentDocuments : public QTableWidget {
  public:
    // `open` shows the document of a key.
    explicit RecentDocuments(std::function<void(int type, std::int32_t key)> open);

    // Reads them anew, over a connection of its own: a screen may be open on the session's.
    void Show(int type);

  private:
    void OpenRow(int row);
    std::function<void(int, std::int32_t)> open_;
    int type_ = 0;
};

} // namespace jxc

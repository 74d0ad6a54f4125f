// The tour's pictures.
#pragma once

#include <QDir>
#include <QString>

namespace tessarine::tour {

/// Numbered PNG files in a folder, each of all windows that are open, menus included.
class Album {
  public:
    /// Makes the folder if need be.
    explicit Album(const QString& folder);

    /// Takes the next picture, such as 01-main-window.png for "main-window".
    void take(const QString& title);

    const QDir& folder() const { return folder_; }

  private:
    QDir folder_;
    int taken_ = 0;
};

}  // namespace tessarine::tour

// What the console would have the desktop open.
#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>
#include <functional>
#include <utility>

namespace tessarine::tour {

/// Gets the files and addresses that are opened while it lives, in place of the desktop's programs.
class UrlKeeper : public QObject {
    Q_OBJECT

  public:
    explicit UrlKeeper(std::function<void(const QUrl&)> keep) : keep_(std::move(keep)) {
        for (const char* scheme : kSchemes) QDesktopServices::setUrlHandler(scheme, this, "take");
    }
    ~UrlKeeper() override {
        for (const char* scheme : kSchemes) QDesktopServices::unsetUrlHandler(scheme);
    }

  public slots:
    void take(const QUrl& url) { keep_(url); }

  private:
    static constexpr const char* kSchemes[] = {"file", "http"};

    std::function<void(const QUrl&)> keep_;
};

}  // namespace tessarine::tour

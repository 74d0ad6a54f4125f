// A pair of arrows beside a text.
#pragma once

#include <QWidget>

namespace tessarine {

/// Tells of each step, up or down, by mouse or, in the field that it belongs to, by the keys Up and
/// Down. An arrow that is held steps on.
class UpDownView : public QWidget {
    Q_OBJECT

  public:
    explicit UpDownView(QWidget& field);

  signals:
    void stepped(int step);  ///< 1 or -1

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tessarine

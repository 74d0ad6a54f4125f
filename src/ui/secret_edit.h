// A field for a password, which never has it.
#pragma once

#include <QLineEdit>

namespace tessarine {

/// Shows a dot for each character and tells what is typed, removed and pasted, for its owner to
/// keep. So no copy of the text lies in a widget, its history or its accessible text. Nothing can
/// be copied out of it.
class SecretEdit : public QLineEdit {
    Q_OBJECT

  public:
    SecretEdit();

    /// Shows so many dots.
    void show_length(int length);

  signals:
    /// `inserted` takes the place of `count` characters from `start` on, counted from 0.
    void changed(int start, int count, const QString& inserted);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent*) override {}
    void dropEvent(QDropEvent*) override {}

  private:
    void insert_text(const QString& text);
    void remove(int direction);
    void replace(int start, int count, const QString& text);
};

}  // namespace tessarine

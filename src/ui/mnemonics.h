// Letters by which the keyboard reaches the entries of a menu.
#pragma once

#include <QString>

namespace tessarine {

/// Gives each caption of one menu a letter of its own. A caption that marks one by "&" keeps it.
class Mnemonics {
  public:
    /// The caption with an "&" before its letter; as it stands when all its letters are taken.
    QString give(const QString& caption) {
        const qsizetype given = caption.indexOf(QLatin1Char('&'));
        if (given >= 0) {
            taken_ += caption.mid(given + 1, 1).toLower();
            return caption;
        }
        for (qsizetype i = 0; i < caption.size(); ++i) {
            const QChar letter = caption[i].toLower();
            if (!letter.isLetter() || taken_.contains(letter)) continue;
            taken_ += letter;
            return QString(caption).insert(i, QLatin1Char('&'));
        }
        return caption;
    }

  private:
    QString taken_;
};

}  // namespace tessarine

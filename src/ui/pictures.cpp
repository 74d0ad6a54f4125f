#include "ui/pictures.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <array>

namespace tessarine {
namespace {

// All pictures are drawn on a square of 16 by 16 units.
using Draw = void (*)(QPainter&);

class DrawnIcon : public QIconEngine {
  public:
    explicit DrawnIcon(Draw draw) : draw_(draw) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled) painter->setOpacity(0.4);
        painter->translate(place.topLeft());
        painter->scale(place.width() / 16.0, place.height() / 16.0);
        draw_(*painter);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new DrawnIcon(draw_); }

  private:
    Draw draw_;
};

void fill(QPainter& painter, const QColor& colour) {
    painter.setPen(QPen(colour.darker(135), 0.8));
    painter.setBrush(colour);
}

void stroke(QPainter& painter, const QColor& colour, double width) {
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
}

void draw_host(QPainter& painter) {
    fill(painter, QColor(0x6B, 0x7F, 0x95));
    painter.drawRoundedRect(QRectF(1.5, 2.5, 13, 9), 1.2, 1.2);
    painter.drawRect(QRectF(5.5, 12.6, 5, 1.2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xCF, 0xE6, 0xFA));
    painter.drawRect(QRectF(3, 4, 10, 6));
}

// A triangle that stands, with a bar and a dot.
void draw_warning(QPainter& painter) {
    fill(painter, QColor(0xFF, 0xC4, 0x2E));
    painter.drawPolygon(QPolygonF({{8, 1.5}, {15, 14}, {1, 14}}));
    stroke(painter, QColor(0x3A, 0x2C, 0x00), 1.8);
    painter.drawLine(QPointF(8, 6), QPointF(8, 9.4));
    painter.drawPoint(QPointF(8, 12));
}

// A disc with an i.
void draw_information(QPainter& painter) {
    fill(painter, QColor(0x2F, 0x7F, 0xD1));
    painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    stroke(painter, Qt::white, 1.9);
    painter.drawPoint(QPointF(8, 4.6));
    painter.drawLine(QPointF(8, 7.6), QPointF(8, 11.6));
}

// An octagon with a cross.
void draw_error(QPainter& painter) {
    fill(painter, QColor(0xD9, 0x36, 0x30));
    painter.drawPolygon(QPolygonF({{5.2, 1.3},
                                   {10.8, 1.3},
                                   {14.7, 5.2},
                                   {14.7, 10.8},
                                   {10.8, 14.7},
                                   {5.2, 14.7},
                                   {1.3, 10.8},
                                   {1.3, 5.2}}));
    stroke(painter, Qt::white, 1.9);
    painter.drawLine(QPointF(5.4, 5.4), QPointF(10.6, 10.6));
    painter.drawLine(QPointF(10.6, 5.4), QPointF(5.4, 10.6));
}

// A padlock; closed for a failure, its bow open for a success.
void draw_lock(QPainter& painter, const QColor& colour, double bow_shift) {
    stroke(painter, colour.darker(125), 1.8);
    QPainterPath bow;
    bow.moveTo(4.7 + bow_shift, 8);
    bow.lineTo(4.7 + bow_shift, 5.2);
    bow.arcTo(QRectF(4.7 + bow_shift, 1.6, 6.6, 7), 180, -180);
    if (bow_shift == 0) bow.lineTo(11.3, 8);
    painter.drawPath(bow);
    fill(painter, colour);
    painter.drawRoundedRect(QRectF(2.2, 7.4, 11.6, 7.6), 1.2, 1.2);
}

void draw_audit_failure(QPainter& painter) {
    draw_lock(painter, QColor(0xC8, 0x5A, 0x1E), 0);
    stroke(painter, Qt::white, 1.7);
    painter.drawLine(QPointF(6.2, 9.4), QPointF(9.8, 13));
    painter.drawLine(QPointF(9.8, 9.4), QPointF(6.2, 13));
}

// The mark of what went well.
void draw_tick(QPainter& painter, const QPointF& from, double size) {
    const std::array<QPointF, 3> bends = {from, from + QPointF(size * 0.36, size * 0.36),
                                          from + QPointF(size, size * -0.36)};
    painter.drawPolyline(bends.data(), static_cast<int>(bends.size()));
}

// A key: what was asked for was opened.
void draw_audit_success(QPainter& painter) {
    stroke(painter, QColor(0x2E, 0x8B, 0x3D), 2.2);
    painter.drawEllipse(QPointF(4.9, 4.9), 3.2, 3.2);
    painter.drawLine(QPointF(7.3, 7.3), QPointF(14, 14));
    painter.drawLine(QPointF(11, 11), QPointF(13, 9));
    painter.drawLine(QPointF(13.4, 13.4), QPointF(14.9, 11.9));
}

void draw_audited(QPainter& painter) {
    stroke(painter, QColor(0x2E, 0x9B, 0x45), 2.8);
    draw_tick(painter, {2.6, 8.4}, 10.8);
}

void draw_not_audited(QPainter& painter) {
    stroke(painter, QColor(0xD9, 0x36, 0x30), 2.8);
    painter.drawLine(QPointF(3.6, 3.6), QPointF(12.4, 12.4));
    painter.drawLine(QPointF(12.4, 3.6), QPointF(3.6, 12.4));
}

void draw_plain_tab(QPainter& painter) {
    fill(painter, QColor(0xF4, 0xF6, 0xF8));
    painter.drawRoundedRect(QRectF(2.5, 1.5, 11, 13), 1, 1);
    stroke(painter, QColor(0x8A, 0x97, 0xA5), 1.2);
    for (const double y : {4.8, 8.0, 11.2}) painter.drawLine(QPointF(5, y), QPointF(11, y));
}

// The same page with a red flag before it.
void draw_alert_tab(QPainter& painter) {
    draw_plain_tab(painter);
    fill(painter, QColor(0xE0, 0x28, 0x20));
    painter.drawPolygon(QPolygonF({{7, 3}, {15.5, 6.4}, {7, 9.8}}));
    stroke(painter, QColor(0x5A, 0x10, 0x0C), 1.6);
    painter.drawLine(QPointF(7, 2.4), QPointF(7, 15));
}

constexpr std::array<Draw, 8> kListPictures = {draw_host,    draw_warning,       draw_information,
                                               draw_error,   draw_audit_failure, draw_audit_success,
                                               draw_audited, draw_not_audited};

}  // namespace

QVariant list_picture(int number) {
    if (number < 1 || number > static_cast<int>(kListPictures.size())) return {};
    return QIcon(new DrawnIcon(kListPictures[static_cast<std::size_t>(number - 1)]));
}

QVariant picture_description(int number) {
    if (number == kIconResultOk) return QStringLiteral("audited");
    if (number == kIconResultError) return QStringLiteral("audit failed");
    return {};
}

QIcon event_picture(int number) {
    constexpr std::array kListNumbers = {kIconWarning, kIconError, kIconInformation,
                                         kIconAuditSuccess, kIconAuditFailure};
    if (number < 1 || number > static_cast<int>(kListNumbers.size())) return {};
    return list_picture(kListNumbers[static_cast<std::size_t>(number - 1)]).value<QIcon>();
}

QIcon tab_picture(int number) {
    return QIcon(new DrawnIcon(number == kTabAlert ? draw_alert_tab : draw_plain_tab));
}

}  // namespace tessarine

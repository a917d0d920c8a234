// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <functional>
#include <string>

#include "cardwright/robot/input/EventProcessing.h"

namespace cardwright::robot {

/// A window that records the mouse and key events that reach it.
class EventRecorder final : public QWidget {
 public:
  EventRecorder() {
    setObjectName(QStringLiteral("recorder"));
    setFocusPolicy(Qt::StrongFocus);
    resize(200, 100);
    show();
    ProcessEvents(std::chrono::milliseconds(10));
    Take();
  }

  std::string Take() { return std::exchange(m_Log, {}); }
  std::function<void()> onPress;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    Note("press", *event);
    if (onPress) onPress();
  }
  void mouseReleaseEvent(QMouseEvent* event) override { Note("release", *event); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { Note("double", *event); }
  void mouseMoveEvent(QMouseEvent* event) override { Note("move", *event); }
  void contextMenuEvent(QContextMenuEvent*) override { m_Log += "menu "; }
  void keyPressEvent(QKeyEvent* event) override {
    m_Log += "key" + std::to_string(event->key()) + "[" + event->text().toStdString() + "] ";
  }

 private:
  void Note(const char* what, const QMouseEvent& event) {
    const QPoint at = event.position().toPoint();
    m_Log += what + std::to_string(event.button()) + "/" + std::to_string(QGuiApplication::mouseButtons()) +
             "@" + std::to_string(at.x()) + "," + std::to_string(at.y());
    if (event.modifiers()) m_Log += "+" + std::to_string(event.modifiers().toInt() >> 25);
    m_Log += " ";
  }

  std::string m_Log;
};

}  // namespace cardwright::robot

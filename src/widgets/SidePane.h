// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

// A column of inputs beside the contents of a window. It is as wide as its inputs need until the user draws it
// narrower, and the mouse wheel scrolls it: an input takes the wheel only while it has the focus. The pane follows the
// focus.
class SidePane final : public QScrollArea
{
public:
    explicit SidePane(QWidget *parent = nullptr);
    ~SidePane() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showFocused(QWidget *focused);
    void leaveWheelToPane();
    void showScrollBarIfNeeded();
};

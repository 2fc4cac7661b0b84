// SPDX-License-Identifier: MIT
/**
 * Qt's common headers, which every file of the desktop gets before anything else: the engine's assertion macros have
 * names that functions of Qt have too.
 */
#pragma once

#include <QApplication>
#include <QHash>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

// Simple vector icons for the controls gallery, drawn with QPainter at any size.
#pragma once

#include <QIcon>
#include <QString>

namespace quovara::gallery {

// Names: "back", "add", "extract", "sfx", "verify", "view", "update", "about", "folder",
// "file", "search", "mail", "web", "archive".
QIcon PaintedIcon(const QString& name);

} // namespace quovara::gallery

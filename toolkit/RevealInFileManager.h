/// Showing an item in the platform's file manager: one source file for each platform. For the sources of the layer
/// alone.
#pragma once

class QUrl;

/// Asks the file manager for a window with the item of this file URL selected, and doesn't wait for it.
void RevealInFileManager(const QUrl& item);

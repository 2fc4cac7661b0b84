// SPDX-License-Identifier: MIT
#pragma once

class FEditorViewportClient;

namespace Host
{
/** Whether a tick draws the client's viewport: it can be seen, and is out of date or realtime. */
bool IsToBeDrawn(const FEditorViewportClient& Client);
} // namespace Host

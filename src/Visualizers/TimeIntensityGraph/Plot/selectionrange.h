#pragma once

/// A span of pixels that the user drags with the mouse.
struct SelectionRange {
};

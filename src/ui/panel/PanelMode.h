#pragma once

/// What the panel shows in its middle.
enum class PanelMode { Timeline, Tags, Reminders, Trash };

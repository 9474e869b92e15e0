#pragma once

/// Which list the panel shows.
enum class PanelMode { Timeline, Tags, Reminders, Trash };

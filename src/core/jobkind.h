// JobKind: the kinds of engine job the program runs (Overview, "Shared types and helpers").
#pragma once

namespace quovara {

enum class JobKind { List, Add, Extract, ExtractSingle, Test, SfxBuild };

} // namespace quovara

// JobKind: the kinds of engine job the program runs, shared by the job windows and the runner.
#pragma once

namespace quovara {

enum class JobKind { List, Add, Extract, ExtractSingle, Test, SfxBuild };

} // namespace quovara

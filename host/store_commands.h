#pragma once

// The commands that work on the stores without a window. Each returns an exit status.

class Environment;

int RunGet(Environment& environment);
int RunSet(Environment& environment);
int RunList(Environment& environment);
int RunExport(Environment& environment);
int RunImport(Environment& environment);

#pragma once

// The commands that open a dialog for a person. Each returns an exit status.

class Environment;

int RunConfig(Environment& environment);
int RunMessage(Environment& environment);
int RunClearHistory(Environment& environment);
int RunEditHistory(Environment& environment);
int RunDocuments(Environment& environment);
int RunArchives(Environment& environment);
int RunOcr(Environment& environment);
/// Says when another language takes effect.
int RunLanguage(Environment& environment);
int RunCache(Environment& environment);
int RunFilters(Environment& environment);

#pragma once

class Environment;

/// Takes requests from standard input until its end and answers on standard output. Returns an exit
/// status.
int RunDrive(Environment& environment);

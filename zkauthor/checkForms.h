#pragma once

struct StartOptions;

/// Checks the form or the package that the command line names and prints what is wrong with it, a line for each
/// finding and one that sums up. The exit code: 0 when there is no error, 1 when there is one, 2 with a message on
/// standard error when there is nothing that can be read.
int checkForms(const StartOptions& options);

# Completion of ostra-params for fish: the program knows its own verbs and options.

ostra-params completion fish 2>/dev/null | source

# Completion of ostra-params for bash: the program knows its own verbs and options.

source <(ostra-params completion bash 2>/dev/null)

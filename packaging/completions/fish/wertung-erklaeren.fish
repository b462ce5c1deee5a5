# What wertung-erklaeren takes on the command line, for fish.
complete -c wertung-erklaeren -f
complete -c wertung-erklaeren -l table -r -k -a "(__fish_complete_suffix .csv)" -d "Take the foods from there"
complete -c wertung-erklaeren -l rules -d "Print all rules"
complete -c wertung-erklaeren -l help -d "Print the usage"

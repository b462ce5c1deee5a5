# What datenlesen takes on the command line, for fish.
complete -c datenlesen -f -k -a "(__fish_complete_suffix .daten)"
complete -c datenlesen -l csv -d "Print a table"
complete -c datenlesen -l help -d "Print the usage"

# What mahlberg takes on the command line, for fish.
set -l commands evaluate food

complete -c mahlberg -f
complete -c mahlberg -n "not __fish_seen_subcommand_from food" -k -a "(__fish_complete_suffix .daten)"
complete -c mahlberg -n __fish_use_subcommand -a evaluate -d "Judge a meal plan"
complete -c mahlberg -n __fish_use_subcommand -a food -d "Print what a food holds"
complete -c mahlberg -n "__fish_seen_subcommand_from $commands" -l format -x -a "text csv json" -d "How to print"
complete -c mahlberg -n __fish_use_subcommand -l data-dir -x -a "(__fish_complete_directories)" -d "Keep foods and plan there"
complete -c mahlberg -n __fish_use_subcommand -l language -x -a "de en" -d "Language of the windows"
complete -c mahlberg -n __fish_use_subcommand -l tour -x -a "(__fish_complete_directories)" -d "Take the tour, leave its pictures there"
complete -c mahlberg -s h -l help -d "Print the options"
complete -c mahlberg -n __fish_use_subcommand -s v -l version -d "Print the version"

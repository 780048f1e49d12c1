# Who gives the packages out, and where their home page is; both are place holders until a facility's association
# takes that on. The pictures of the software centre are expected at HEIMSEITE/bilder, as they lie in docs/handbuch.
kontakt="The Tolvek7 maintainers <tolvek7@example.org>"
heimseite=https://tolvek7.example.org

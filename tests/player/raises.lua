error("as it must")

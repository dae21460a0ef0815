local testing = require("tests.testing")
testing.case("one is two", function() testing.equal(1, 2) end)
testing.run()

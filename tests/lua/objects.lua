-- One object of each class that scripts can make, by the class's name.
objects = {}
for name, class in pairs(velora) do
  if type(class) == "table" and class.new then objects[name] = class.new(1, 2, 3, 4, 5, 6, 7) end
end

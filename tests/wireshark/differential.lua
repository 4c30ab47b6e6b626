-- differential.lua TARN_LUA TARN_TOOL SAMPLES COUNT
--
-- Gives the samples, and mutations of them, to the plugin's reading part and to `tarn decode`:
-- message, verdict, and each finding with its byte, IE path and words must be equal. Plain Lua,
-- without Wireshark.
local pluginPath, tool, sampleFolder, count = arg[1], arg[2], arg[3], tonumber(arg[4])
local engine = dofile(pluginPath)

-- ---- Samples -----------------------------------------------------------------------------------

local function bytes_of_hex(text)
  return (text:gsub("%s", ""):gsub("%x%x", function(pair)
    return string.char(tonumber(pair, 16))
  end))
end

-- A line that is not indented begins a message; so does one behind an empty line.
local function read_samples(path, samples)
  local isOpen = false
  for line in io.lines(path) do
    local text = line:gsub("#.*", "")
    local isBlank, isIndented = not text:find("%S"), line:find("^%s")
    if not isBlank then
      if not (isOpen and isIndented) then
        samples[#samples + 1] = ""
      end
      samples[#samples] = samples[#samples] .. bytes_of_hex(text)
    end
    isOpen = isOpen and line:find("%S") or not isBlank
  end
end

local samples = {}
for path in io.popen("find '" .. sampleFolder .. "' -name '*.hex' | sort"):lines() do
  read_samples(path, samples)
end
assert(#samples > 50, "too few samples in " .. sampleFolder)

-- ---- Mutations ---------------------------------------------------------------------------------

-- The same numbers with every Lua.
local seed = 20250117
local function random(below)
  seed = seed * 16807 % 2147483647
  return seed % below
end

local function number_bytes(number, width)
  local text = ""
  for _ = 1, width do
    text = string.char(number % 256) .. text
    number = math.floor(number / 256)
  end
  return text
end

-- All IEs and nested TLVs that can be read.
local function collect(bytes, node, found)
  for _, child in ipairs(engine.parts_of(bytes, node)) do
    if child.size then
      found[#found + 1] = child
    end
    collect(bytes, child, found)
  end
  return found
end

local function length_of(node)
  return node.declared or node.size - engine.headerSize
end

local function replace(bytes, at, length, by)
  return bytes:sub(1, at) .. by .. bytes:sub(at + length + 1)
end

local function any_type()
  return engine.rows.types[1 + random(#engine.rows.types)]
end

local function any_of(list)
  return list[1 + random(#list)]
end

local mutations = {
  function(bytes) -- any byte
    return replace(bytes, random(#bytes), 1, string.char(random(256)))
  end,
  function(bytes) -- cut short
    return bytes:sub(1, random(#bytes + 1))
  end,
  function(bytes) -- the id of another message
    return replace(bytes, 6, 1, string.char(random(42)))
  end,
  function(bytes, node) -- another tag
    return replace(bytes, node.at, 2, number_bytes(any_type().tag, 2))
  end,
  function(bytes, node) -- a length that is near, or far off
    local length = length_of(node)
    length = any_of({ length - 1, length + 1, random(40), 0, 4294967295 })
    return replace(bytes, node.at + 2, 4, number_bytes(length % 4294967296, 4))
  end,
  function(bytes, node) -- left out
    return replace(bytes, node.at, node.size, "")
  end,
  function(bytes, node) -- twice
    return replace(bytes, node.at, 0, bytes:sub(node.at + 1, node.at + node.size))
  end,
  function(bytes, node) -- a small number, as conditions and ranges look at
    return replace(bytes, node.at + node.size - 1, 1, string.char(random(5)))
  end,
  function(bytes, node, nodes) -- a second IE behind it
    local other = any_of(nodes)
    return replace(bytes, node.at, 0, bytes:sub(other.at + 1, other.at + other.size))
  end,
  function(bytes) -- bytes behind the end
    return bytes .. any_of({ "\0", "\0\1\0\0\0\4\0\0\0\1", "\1\44\0\0\0\1\9", bytes })
  end,
  function(bytes, node) -- a byte more, with the length to match
    local length = number_bytes(length_of(node) + 1, 4)
    return replace(replace(bytes, node.at + node.size, 0, "\0"), node.at + 2, 4, length)
  end,
}

local function mutate(bytes)
  for _ = 1, any_of({ 1, 1, 1, 2, 3 }) do
    local nodes = collect(bytes, engine.read_message(bytes).root, {})
    local before = bytes
    if #bytes > 7 and #nodes > 0 then
      bytes = any_of(mutations)(bytes, any_of(nodes), nodes)
    end
    bytes = #bytes > 0 and bytes or before
  end
  return bytes
end

-- ---- Both answers ------------------------------------------------------------------------------

local reasons = {} -- how often each was found
local function answer(bytes)
  local result = engine.read_message(bytes)
  local message = result.message and result.message.name or "no known message"
  local lines = { message .. ", " .. result.verdict }
  for _, fault in ipairs(result.faults) do
    reasons[fault.reason] = (reasons[fault.reason] or 0) + 1
    lines[#lines + 1] = engine.words(fault)
  end
  for _, note in ipairs(result.notes) do
    reasons[note.reason] = (reasons[note.reason] or 0) + 1
    lines[#lines + 1] = "note: " .. engine.words(note)
  end
  return table.concat(lines, "\n"), result.verdict
end

-- The tool's answers, one for each message.
local function answers_of_tool(path)
  local lines
  local pipe = io.popen("'" .. tool .. "' decode '" .. path .. "'")
  return function()
    for line in pipe:lines() do
      local name, verdict = line:match("^message %d+ %([^)]*%): (.-),? %d+ bytes?, (.*)$")
      if name then
        lines = { name:gsub(" %(id %d+%)", "") .. ", " .. verdict }
      elseif line == "" then
        return table.concat(lines, "\n")
      else
        local found = line:match("^  %a+: (byte .*)") or line:match("^    (byte .*: .*)")
        lines[#lines + 1] = line:match("^  (note: .*)") or found
      end
    end
  end
end

local function hex(bytes)
  return (bytes:gsub(".", function(c)
    return string.format("%02x", c:byte())
  end))
end

local messages = {}
for i = 1, count do
  messages[i] = samples[i] or mutate(any_of(samples))
end
local path = os.tmpname()
local file = assert(io.open(path, "w"))
for _, bytes in ipairs(messages) do
  file:write(hex(bytes), "\n")
end
file:close()

local tally, different = { valid = 0, invalid = 0, refused = 0 }, 0
local next_answer = answers_of_tool(path)
for i, bytes in ipairs(messages) do
  local ours, verdict = answer(bytes)
  local theirs = next_answer() or "nothing"
  tally[verdict] = tally[verdict] + 1
  if ours ~= theirs then
    different = different + 1
    if different <= 5 then
      print(hex(bytes) .. "\nplugin: " .. ours .. "\ntarn:   " .. theirs .. "\n")
    end
  end
end
os.remove(path)
print(string.format("%s: %d messages (%d samples): %d valid, %d invalid, %d refused; %d differ",
  _VERSION, #messages, #samples, tally.valid, tally.invalid, tally.refused, different))
os.exit(different == 0 and #messages == count and 0 or 1)

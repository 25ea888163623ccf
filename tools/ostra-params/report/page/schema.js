// ---- schema texts: put together from what objects say, and laid out as "ostra-params fmt" does
function schemaTextOf(object) {
  const { schema, literals } = object.shape;
  const quoted = (value) => JSON.stringify(typeof value === "string" ? value : value.typeId);
  let text = schema[0];
  for (let i = 1; i < schema.length; i += 2) {
    const hole = schema[i];
    if (Array.isArray(hole)) {
      const values = object.values(hole[0]);
      text += typeof hole[1] === "number" ? quoted(values[hole[1]]) : values.map(quoted).join(hole[1]);
    } else {
      text += hole === -1 ? quoted(object.typeId) : hole === -2 ? quoted(object.name) : textOf(at(literals[hole], object.row));
    }
    text += schema[i + 1];
  }
  return text;
}

// Returns lines of tokens. A container is one line if that is short enough; texts may be nested without limit.
function linesOf(text) {
  const lineWidth = 100;
  const mostLevels = 3;
  const deepest = 32;
  const tokens = text.match(/"(?:[^"\\]|\\.)*"|[{}[\],:]|[^\s{}[\],:"]+/gs) ?? [];
  const ends = [];      // of what opens at a token
  const heights = [];
  const inLine = [];    // each token as it stands in a line
  const widths = [0];   // up to each token, in a line
  const open = [];
  tokens.forEach((token, i) => {
    const isEmpty = (token === "{" && tokens[i + 1] === "}") || (token === "}" && tokens[i - 1] === "{");
    inLine[i] = isEmpty ? token : token === "{" ? "{ " : token === "}" ? " }" : token === "," || token === ":" ? token + " " : token;
    widths.push(widths[i] + [...inLine[i]].length);
    if (token === "{" || token === "[") {
      heights[i] = 1;
      open.push(i);
    } else if (token === "}" || token === "]") {
      const begin = open.pop();
      ends[begin] = i;
      const outer = open.at(-1);
      heights[outer] = Math.max(heights[outer] ?? 0, heights[begin] + 1);
    }
  });

  const lines = [];
  let line = [];
  const startLine = (depth) => {
    lines.push(line);
    line = depth === 0 ? [] : ["  ".repeat(depth)];
  };
  function write(begin, depth, before, name) { // what begins at a token; returns where it ends
    const end = ends[begin] ?? begin;
    const comma = tokens[end + 1] === "," ? 1 : 0;
    const isLong = before + widths[end + 1] - widths[begin] + comma > lineWidth || heights[begin] > mostLevels;
    const isTable = depth === 1 && /^"(constants|properties)"$/.test(name) && /[{[]/.test(tokens[begin + 1]);
    if (end <= begin + 1 || depth >= deepest || (depth > 0 && !isLong && !isTable)) {
      line.push(...inLine.slice(begin, end + 1));
      return end;
    }
    line.push(tokens[begin]);
    for (let i = begin + 1; i < end; ++i) {
      startLine(depth + 1);
      const isMember = tokens[begin] === "{";
      const key = isMember ? tokens[i] : "";
      if (isMember) {
        line.push(key, ": ");
        i += 2;
      }
      i = write(i, depth + 1, 2 * (depth + 1) + (isMember ? [...key].length + 2 : 0), key) + 1;
      if (tokens[i] === ",") {
        line.push(",");
      }
    }
    startLine(depth);
    line.push(tokens[end]);
    return end;
  }
  if (tokens.length > 0) {
    write(0, 0, 0, "");
  }
  lines.push(line);
  return lines;
}

// Returns a token as it is shown: a typeid of the catalogue is a link to its object.
function tokenShown(token, i, line) {
  if (!token.startsWith('"')) {
    return token;
  }
  if (line[i + 1]?.startsWith(":")) {
    return element("span", { class: "key" }, token);
  }
  const object = findObject(JSON.parse(token));
  return object && object !== current ? ['"', element("a", { href: linkTo({ object: object.typeId }) }, token.slice(1, -1)), '"'] : token;
}
function schemaShown(object) {
  return element("pre", { class: "schema", tabindex: "0", "aria-label": "Schema text" }, element("code", null,
    ...linesOf(schemaTextOf(object)).flatMap((line) => element("span", { class: "line" }, ...line.flatMap(tokenShown), "\n"))));
}
